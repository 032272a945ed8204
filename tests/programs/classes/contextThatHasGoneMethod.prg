FUNCTION f(inner) RETURN contextget(); ENDFUNCTION;
c = f(5);
? c.abs(1);                     // expect status: 18
