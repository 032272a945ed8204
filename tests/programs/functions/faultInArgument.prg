FUNCTION f(x) ? "never"; RETURN x; ENDFUNCTION;
? f(1/0);               // expect status: 21
