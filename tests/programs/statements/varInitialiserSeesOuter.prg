x = 1;
FUNCTION f()
    VAR x = x+1;
    RETURN x;
ENDFUNCTION;
? f();                  // expect: 2
? x;                    // expect: 1
