// Behind an operation NOT is a name like any other.
a = (1=1);
? a AND NOT a;
// expect: ? a AND NOT a;
// expect: Синтаксическая ошибка. Ожидается ";"
// trace: line: 3 pos: 10 func: textExec file: localProgram.cpp
// trace: char: 84 func: textExec file: localProgram.cpp
// expect status: 42
