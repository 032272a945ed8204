IF 1 THEN x=2;                  // expect status: 45
// expect: // expect: char: 0
// expect: Синтаксическая ошибка. Ожидается ключевое слово "КОНЕЦЕСЛИ" ("endif")
// expect: line: 5 pos: 18
// expect: char: 0
