i = 0;
WHILE i<3 DO
    ? i;
    i = i+1;
ENDDO;
// expect: 0
// expect: 1
// expect: 2
? i;                    // expect: 3
ПОКА (i>0) И (i<10) ЦИКЛ i = i-1; КОНЕЦЦИКЛА;
? i;                    // expect: 0
