FUNCTION f ;
// expect: FUNCTION f ;
// expect: Синтаксическая ошибка. Ожидается "("
// trace: line: 1 pos: 10 func: textExec file: localProgram.cpp
// trace: char: 32 func: textExec file: localProgram.cpp
// expect status: 40
