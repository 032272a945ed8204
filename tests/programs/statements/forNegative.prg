FOR i=-3.5 TO -1-1 DO ? i; ENDDO;
// expect: -3.5
// expect: -2.5
? i;                            // expect: -1.5
FOR i=-1 TO -2 DO ? i; ENDDO;
? i;                            // expect: -1
