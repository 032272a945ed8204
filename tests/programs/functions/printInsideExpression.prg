// What a function prints comes before the line that its value is part of.
FUNCTION f(x) ? "in f"; RETURN x; ENDFUNCTION;
? 1+f(2)*3;             // expect: in f
// expect: 7
