? 1e5;
// expect: ? 1e5;
// expect: Синтаксическая ошибка. Ожидается ";"
// trace: line: 1 pos: 2 func: textExec file: localProgram.cpp
// trace: char: 49 func: textExec file: localProgram.cpp
// expect status: 42
