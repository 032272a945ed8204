// The word of another construct is read on as if it were ELSEIF, and a condition is missing behind it.
WHILE 1 DO IF 1 THEN x=2; ENDDO;        // expect status: 37
