x = "outer";
FUNCTION f()
    VAR x = "inner";
    ? x;
    x = "changed";
    RETURN x;
ENDFUNCTION;
? f();
// expect: inner
// expect: changed
? x;                    // expect: outer
