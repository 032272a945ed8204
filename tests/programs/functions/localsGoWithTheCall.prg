FUNCTION f()
    fresh = 5;
    RETURN fresh;
ENDFUNCTION;
? f();                  // expect: 5
? fresh;                // expect status: 10
