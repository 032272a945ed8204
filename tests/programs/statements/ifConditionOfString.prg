// A fresh string's number is 0.
IF "a" THEN ? 1; ELSE ? 2; ENDIF;       // expect: 2
WHILE "a" DO ? 3; ENDDO;
IF "" THEN ? 4; ELSE ? 5; ENDIF;        // expect: 5
