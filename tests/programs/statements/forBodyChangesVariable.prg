FOR i=1 TO 5 DO
    ? i;
    i = i+1;
ENDDO;
// expect: 1
// expect: 3
// expect: 5
? i;                    // expect: 7
