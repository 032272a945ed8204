// The statement is taken for a call, but the expression ends behind the name.
abs (1);
// expect: abs (1);
// expect: Синтаксическая ошибка. Ожидается ";"
// trace: line: 2 pos: 2 func: textExec file: localProgram.cpp
// trace: char: 115 func: textExec file: localProgram.cpp
// expect status: 42
