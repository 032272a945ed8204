x = 1
y = 2;                  // expect status: 42
// expect: x = 1
// expect: Синтаксическая ошибка. Ожидается ";"
// expect: line: 1 pos: 4
// expect: char: 49
