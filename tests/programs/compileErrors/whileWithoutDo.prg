WHILE 1 x=2; ENDDO;             // expect status: 43
// expect: WHILE 1 x=2; ENDDO;             // expect status: 43
// expect: Синтаксическая ошибка. Ожидается ключевое слово "ЦИКЛ" ("do")
