// expect: ОШИБКА при сборке СТРОКОВОЙ костанты . Ожидается символ '"'
// expect: ERROR!!!
// expect: ? "abc;
// expect: Синтаксическая ошибка.
// expect: line: 8 pos: 7
// expect: char: 0
// expect status: 37
? "abc;
