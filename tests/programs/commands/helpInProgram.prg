// Without a blank behind it the word reads as a name.
HELP;
// expect: HELP;
// expect: Синтаксическая ошибка.
// trace: line: 2 pos: 4 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 37
