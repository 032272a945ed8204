QUIT;
// expect: QUIT;
// expect: Синтаксическая ошибка.
// trace: line: 1 pos: 4 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 37
