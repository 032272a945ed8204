FOR i= TO 3 DO ENDDO;           // expect status: 48
