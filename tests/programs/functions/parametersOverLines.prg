FUNCTION f ( a // the first
    ,
    b // the second
    )
    RETURN a*10+b;
ENDFUNCTION;
? f(1, 2);              // expect: 12
