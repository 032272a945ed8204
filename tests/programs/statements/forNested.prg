FOR i=1 TO 2 DO
    FOR j=1 TO 2 DO
        ? i*10+j;
    ENDDO;
ENDDO;
// expect: 11
// expect: 12
// expect: 21
// expect: 22
