FOR i=1 TO 3 STEP 2 DO ENDDO;   // expect status: 43
