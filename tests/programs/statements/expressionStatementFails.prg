1/0;
// expect: 1/0;
// expect: Синтаксическая ошибка.
// trace: line: 1 pos: 1 func: textExec file: localProgram.cpp
// trace: char: 47 func: textExec file: localProgram.cpp
// expect status: 37
