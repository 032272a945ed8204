// A call inside a loop does not end the loop by its RETURN.
FUNCTION f(x) RETURN x; ENDFUNCTION;
FOR i=1 TO 3 DO x = f(i); ENDDO;
? x;                    // expect: 3
WHILE f(x) DO x = x-1; ENDDO;
? x;                    // expect: 0
