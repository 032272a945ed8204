// expect: x
// expect: Синтаксическая ошибка.
// trace: line: 6 pos: 1 func: textExec file: localProgram.cpp
// trace: char: 0 func: textExec file: localProgram.cpp
// expect status: 37
x
