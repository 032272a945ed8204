? 1.2.3;
// expect: ? 1.2.3;
// expect: Синтаксическая ошибка. Ожидается ";"
// trace: line: 1 pos: 4 func: textExec file: localProgram.cpp
// trace: char: 50 func: textExec file: localProgram.cpp
// expect status: 42
