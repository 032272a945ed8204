// The call under way keeps its body.
FUNCTION f()
    DO "data/redefinesF.prg";
    ? "still the first";
    RETURN 1;
ENDFUNCTION;
? f();
// expect: still the first
// expect: 1
? f();
// expect: still the first
// expect: 1
