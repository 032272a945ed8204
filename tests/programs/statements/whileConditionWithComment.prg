i = 0;
WHILE i<2 // passes
DO
    i = i+1; // the next
ENDDO;
? i;                    // expect: 2
