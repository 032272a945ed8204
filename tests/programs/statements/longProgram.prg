// Ten thousand passes leave nothing behind.
FUNCTION step(x) VAR y = x+1; s = "a"+string(y); RETURN y; ENDFUNCTION;
n = 0;
WHILE n<10000 DO n = step(n); ENDDO;
? n;                    // expect: 10000
