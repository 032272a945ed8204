WHILE 1 DO CONTINUE; ENDDO;     // expect status: 37
