WHILE 1=2 DO ? 1; ENDDO;
WHILE 0 DO ENDDO;
WHILE 0-5 DO ? 2; ENDDO;
? "behind";             // expect: behind
