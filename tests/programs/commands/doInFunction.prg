// The program runs in the scope of the call.
FUNCTION f()
    DO "data/setsX.prg";
    RETURN x;
ENDFUNCTION;
? f();
// expect: set
// expect: 5
? x;                            // expect status: 10
