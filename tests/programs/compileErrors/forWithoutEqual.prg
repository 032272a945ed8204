FOR i TO 3 DO ENDDO;    // expect status: 39
// expect: FOR i TO 3 DO ENDDO;    // expect status: 39
// expect: Синтаксическая ошибка. Ожидается "="
// expect: line: 1 pos: 6
// expect: char: 84
