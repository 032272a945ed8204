WHILE 1 DO BREAK ENDDO;
// expect: WHILE 1 DO BREAK ENDDO;
// expect: Синтаксическая ошибка. Ожидается ";"
// trace: line: 1 pos: 15 func: textExec file: localProgram.cpp
// trace: char: 75 func: textExec file: localProgram.cpp
// expect status: 42
