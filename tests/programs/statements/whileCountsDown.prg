n = 3;
WHILE n DO n = n-1; ENDDO;
? n;                    // expect: 0
