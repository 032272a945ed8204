IF 1=1 THEN ? 1; ENDDO;         // expect status: 37
