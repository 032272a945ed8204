// The variable stays where it stood.
FOR i=1 TO 10 DO
    IF i=3 THEN BREAK; ENDIF;
    ? i;
ENDDO;
// expect: 1
// expect: 2
? i;                    // expect: 3
