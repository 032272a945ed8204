// The first of the two is the one that is found.
FUNCTION f(a, a) RETURN a; ENDFUNCTION;
? f(1, 2);              // expect: 1
