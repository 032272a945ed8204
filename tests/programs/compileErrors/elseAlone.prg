// ELSE where no IF is open comes to the top as a status without words.
ELSE                    // expect status: 0
// expect: ELSE                    // expect status: 0
// expect: Неизвестный статус возврата ном: 0
// expect: line: 2 pos: 4
// expect: char: 32
