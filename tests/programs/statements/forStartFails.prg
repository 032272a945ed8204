FOR i=1/0 TO 3 DO ? i; ENDDO;           // expect status: 21
// expect:
// expect: >> I=1/0;
// expect: ERROR!!! Деление на 0!
// expect: Деление на 0!
