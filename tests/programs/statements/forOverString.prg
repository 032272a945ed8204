FOR i=1 TO "3" DO ? i; ENDDO;           // expect status: 50
// expect: ERROR!!!
// expect: Неверный тип операнда (-ов)!
