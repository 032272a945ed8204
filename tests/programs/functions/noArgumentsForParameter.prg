FUNCTION f(a) RETURN a; ENDFUNCTION;
? f();                  // expect status: 31
