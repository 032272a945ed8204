FUNCTION f(x) RETURN x+1; ENDFUNCTION;
f = 10;
? f(f);                 // expect: 11
? f;                    // expect: 10
