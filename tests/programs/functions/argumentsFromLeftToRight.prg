FUNCTION told(x) ? x; RETURN x; ENDFUNCTION;
FUNCTION sum(a, b, c) RETURN a+b+c; ENDFUNCTION;
? sum(told(1), told(2), told(3));
// expect: 1
// expect: 2
// expect: 3
// expect: 6
