// A command that takes nothing ends behind the blank, and "=" is no semicolon.
help = 3;
// expect: help = 3;
// expect: Синтаксическая ошибка. Ожидается ";"
// trace: line: 2 pos: 4 func: textExec file: localProgram.cpp
// trace: char: 32 func: textExec file: localProgram.cpp
// expect status: 42
