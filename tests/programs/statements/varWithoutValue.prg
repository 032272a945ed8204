VAR x;
// expect: VAR x;
// expect: Синтаксическая ошибка.
// trace: line: 1 pos: 5 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 37
