// Loaded into the call's own scope the new body lives as long as the call; the caller keeps the first.
FUNCTION f()
    x = moduleload("data/redefinesF.prg");
    ? f();
    RETURN "first";
ENDFUNCTION;
? f();
// expect: second
// expect: first
