// AND and OR do not stop at the first operand.
FUNCTION told(name, value)
    ? name;
    RETURN value;
ENDFUNCTION;
? told("first", 1=2) AND told("second", 1=1);
// expect: first
// expect: second
// expect: ЛОЖЬ
? told("third", 1=1) OR told("fourth", 1=2);
// expect: third
// expect: fourth
// expect: ИСТИНА
