// A path ends with its call.
x = classload("TEST");
? createobject("TEST").GETINT();
// expect: ? createobject("TEST").GETINT();
// expect: Синтаксическая ошибка. Ожидается ";"
// trace: line: 3 pos: 21 func: textExec file: localProgram.cpp
// trace: char: 41 func: textExec file: localProgram.cpp
// expect status: 42
