? 1;
  ? (2;                 // expect status: 41
// expect: ERROR!!!
// expect:   ? (2;                 // expect status: 41
// expect: Синтаксическая ошибка. Ожидается ")"
// expect: line: 2 pos: 6
// expect: char: 59
