WHILE 1 DO CONTINUE; ENDDO;
// expect: WHILE 1 DO CONTINUE; ENDDO;
// expect: Синтаксическая ошибка.
// trace: line: 1 pos: 19 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 37
