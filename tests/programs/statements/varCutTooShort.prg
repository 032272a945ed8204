// Three letters are a name.
ПЕР x = 1;
// expect: ПЕР x = 1;
// expect: Синтаксическая ошибка.
// trace: line: 2 pos: 4 func: textExec file: localProgram.cpp
// trace: char: 120 func: textExec file: localProgram.cpp
// expect status: 37
