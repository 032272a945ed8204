a = 1;
? a . b;
// expect: ? a . b;
// expect: Синтаксическая ошибка. Ожидается ";"
// trace: line: 2 pos: 2 func: textExec file: localProgram.cpp
// trace: char: 97 func: textExec file: localProgram.cpp
// expect status: 42
