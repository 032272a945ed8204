? 1?2;                  // expect status: 38
// expect: ERROR!!!
// expect: ? 1?2;                  // expect status: 38
// expect: Неизвестный статус возврата ном: 38
// expect: line: 1 pos: 5
// expect: char: 59
