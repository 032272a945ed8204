VAR = 1;
// expect: VAR = 1;
// expect: Синтаксическая ошибка.
// trace: line: 1 pos: 4 func: textExec file: localProgram.cpp
// trace: char: 61 func: textExec file: localProgram.cpp
// expect status: 37
