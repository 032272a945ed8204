i = 0;
WHILE 1 DO
    i = i+1;
    IF i=3 THEN BREAK; ENDIF;
    ? i;
ENDDO;
// expect: 1
// expect: 2
? "behind";             // expect: behind
