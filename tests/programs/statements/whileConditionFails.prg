n = 2;
WHILE 1/n DO ? n; n = n-1; ENDDO;       // expect: 2
// expect: 1
// expect: ERROR!!!
// expect: Деление на 0!
// expect status: 21
