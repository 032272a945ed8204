? "a""b";
// expect: ? "a""b";
// expect: Синтаксическая ошибка. Ожидается ";"
// trace: line: 1 pos: 4 func: textExec file: localProgram.cpp
// trace: char: 34 func: textExec file: localProgram.cpp
// expect status: 42
