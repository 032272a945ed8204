FOR i=1 TO 0 DO ENDDO;
? i;                    // expect: 1
