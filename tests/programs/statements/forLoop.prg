FOR i=1 TO 3 DO ? i; ENDDO;
// expect: 1
// expect: 2
// expect: 3
? i;                    // expect: 4
ДЛЯ j=2 ПО 3 ЦИКЛ ? j; КОНЕЦЦИКЛА;
// expect: 2
// expect: 3
? j;                    // expect: 4
