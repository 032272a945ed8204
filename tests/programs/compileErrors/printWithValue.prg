PRINT x;
// expect: PRINT x;
// expect: Синтаксическая ошибка. Ожидается ";"
// trace: line: 1 pos: 4 func: textExec file: localProgram.cpp
// trace: char: 84 func: textExec file: localProgram.cpp
// expect status: 42
