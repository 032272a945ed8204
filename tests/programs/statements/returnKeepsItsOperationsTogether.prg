FUNCTION f(x) RETURN x-1+2; ENDFUNCTION;
? f(5);                 // expect: 2
RETURN 0?5:1;
