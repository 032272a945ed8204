FOR i=1 TO 2 DO
    FOR j=1 TO 5 DO
        IF j=2 THEN BREAK; ENDIF;
        ? i*10+j;
    ENDDO;
    ? j;
ENDDO;
// expect: 11
// expect: 2
// expect: 21
// expect: 2
