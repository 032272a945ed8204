WHILE 1 DO BREAK ENDDO; // expect status: 42
