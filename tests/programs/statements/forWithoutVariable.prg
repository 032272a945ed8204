FOR =1 TO 2 DO ? 1; ENDDO;              // expect status: 37
