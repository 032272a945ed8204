FUNCTION f(a, b) RETURN a; ENDFUNCTION;
? f(1);                 // expect status: 31
