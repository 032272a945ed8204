FOR i=1 TO 3 x=i; ENDDO;        // expect status: 43
// expect: FOR i=1 TO 3 x=i; ENDDO;        // expect status: 43
// expect: Синтаксическая ошибка. Ожидается ключевое слово "ЦИКЛ" ("do")
