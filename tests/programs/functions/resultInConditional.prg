FUNCTION yes() RETURN 1=1; ENDFUNCTION;
FUNCTION number(x) RETURN x; ENDFUNCTION;
? yes()?"a":"b";        // expect: a
? number(0)?"a":"b";    // expect: b
