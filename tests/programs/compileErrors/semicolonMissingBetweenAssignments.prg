x = 1
// expect: x = 1
// expect: Синтаксическая ошибка. Ожидается ";"
// trace: line: 1 pos: 4 func: textExec file: localProgram.cpp
// trace: char: 49 func: textExec file: localProgram.cpp
// expect status: 42
y = 2;
