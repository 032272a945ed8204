FOR i=1 TO 3 DO ENDDO;  // expect status: 54
