// expect: ;
// expect: Синтаксическая ошибка.
// expect: x = ;
// expect: Синтаксическая ошибка.
// expect: line: 8 pos: 4
// expect: char: 59
// expect status: 37
x = ;
