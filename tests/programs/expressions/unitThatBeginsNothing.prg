// "[" begins a path with an empty name and stays unread.
? [1];
// expect: ? [1];
// expect: Синтаксическая ошибка. Ожидается ";"
// trace: line: 2 pos: 1 func: textExec file: localProgram.cpp
// trace: char: 32 func: textExec file: localProgram.cpp
// expect status: 42
