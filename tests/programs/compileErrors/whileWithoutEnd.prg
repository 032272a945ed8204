// expect: WHILE 1 DO x=2;
// expect: Синтаксическая ошибка. Ожидается ключевое слово "КОНЕЦЦИКЛА" ("enddo")
// expect: line: 6 pos: 15
// expect: char: 0
// expect status: 44
WHILE 1 DO x=2;
