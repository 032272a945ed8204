// The word is read as itself: a boolean is not compared with a number.
FOR ИСТИНА=1 TO 2 DO ? 1; ENDDO;        // expect status: 50
