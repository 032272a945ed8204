FUNCTION f("a") RETURN 1; ENDFUNCTION;  // expect status: 16
