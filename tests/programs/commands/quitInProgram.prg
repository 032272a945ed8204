// In a program it spoils the compile.
? "never";
QUIT ;                          // expect status: 5
// expect match: // *
// expect: Неизвестный статус возврата ном: 5
