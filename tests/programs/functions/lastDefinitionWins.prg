// Two definitions of one block are installed in order, before anything runs.
FUNCTION f() RETURN "first"; ENDFUNCTION;
? f();                  // expect: second
FUNCTION f() RETURN "second"; ENDFUNCTION;
? f();                  // expect: second
