FOR i=1 TO 3 ? i; ENDDO;        // expect status: 38
