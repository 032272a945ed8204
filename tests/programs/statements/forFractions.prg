FOR i=0.5 TO 2 DO ? i; ENDDO;
// expect: 0.5
// expect: 1.5
FOR i=-1 TO 1 DO ? i; ENDDO;
// expect: -1
// expect: 0
// expect: 1
