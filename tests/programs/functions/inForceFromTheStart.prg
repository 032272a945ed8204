// A definition is no statement: it holds before its place in the text.
? f(2);                 // expect: 4
FUNCTION f(x) RETURN x*2; ENDFUNCTION;
