// A definition inside a block comes into force when the block runs.
FUNCTION f() RETURN "outer"; ENDFUNCTION;
? f();                  // expect: outer
IF 1=2 THEN
    FUNCTION f() RETURN "never"; ENDFUNCTION;
    ? "never";
ENDIF;
? f();                  // expect: outer
IF 1=1 THEN
    ? f();              // expect: branch
    FUNCTION f() RETURN "branch"; ENDFUNCTION;
ENDIF;
? f();                  // expect: branch
