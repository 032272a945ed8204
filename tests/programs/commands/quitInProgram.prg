// In a program it spoils the compile.
// expect: QUIT ;
// expect: Неизвестный статус возврата ном: 5
// trace: line: 8 pos: 6 func: textExec file: localProgram.cpp
// trace: char: 0 func: textExec file: localProgram.cpp
// expect status: 5
? "never";
QUIT ;
