? 1;
ENDDO;                  // expect status: 2
// expect: ENDDO;                  // expect status: 2
// expect: Непредвиденное использование зарезарвированного слова КонецЦикла (EndDo)
// expect: line: 2 pos: 5
// expect: char: 59
