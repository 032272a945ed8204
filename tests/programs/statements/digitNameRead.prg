1a = 2;
? 1a;
// expect: ? 1a;
// expect: Синтаксическая ошибка. Ожидается ";"
// trace: line: 2 pos: 2 func: textExec file: localProgram.cpp
// trace: char: 49 func: textExec file: localProgram.cpp
// expect status: 42
