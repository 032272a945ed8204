// The body never runs and the variable keeps the start value.
FOR i=5 TO 4 DO ? i; ENDDO;
? i;                    // expect: 5
