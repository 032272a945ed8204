// They are computed and not heeded.
FUNCTION f(a) RETURN a; ENDFUNCTION;
FUNCTION told(x) ? x; RETURN x; ENDFUNCTION;
? f(1, told(2), told(3));
// expect: 2
// expect: 3
// expect: 1
FUNCTION none() RETURN "none"; ENDFUNCTION;
? none(1, 2);           // expect: none
