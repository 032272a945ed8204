FOR i=1 3 DO ENDDO;     // expect status: 48
// expect: FOR i=1 3 DO ENDDO;     // expect status: 48
// expect: Синтаксическая ошибка. Ожидается ключевое слово "ПО" ("to")
