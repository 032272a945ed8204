FUNCTION f(a=1) RETURN 1; ENDFUNCTION;  // expect status: 40
