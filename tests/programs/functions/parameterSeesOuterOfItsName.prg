x = 5;
FUNCTION f(x) x = x+1; RETURN x; ENDFUNCTION;
? f(x*2);               // expect: 11
? x;                    // expect: 5
