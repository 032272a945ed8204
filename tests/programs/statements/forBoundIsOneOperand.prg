// The bound stays together whatever operations it holds.
FOR i=1 TO 1+1 DO ? i; ENDDO;
// expect: 1
// expect: 2
FOR i=1 TO 5-3 DO ? i; ENDDO;
// expect: 1
// expect: 2
FOR i=1 TO 1?2:3 DO ? i; ENDDO;
// expect: 1
// expect: 2
