FUNCTION change(a) a = a+1; RETURN a; ENDFUNCTION;
x = 1;
? change(x);            // expect: 2
? x;                    // expect: 1
a = 10;
? change(a);            // expect: 11
? a;                    // expect: 10
