PROCEDURE f;
// expect: PROCEDURE f;
// expect: Синтаксическая ошибка. Ожидается "("
// trace: line: 1 pos: 11 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 40
