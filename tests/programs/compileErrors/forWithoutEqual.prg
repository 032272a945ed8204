FOR i TO 3 DO ENDDO;
// expect: FOR i TO 3 DO ENDDO;
// expect: Синтаксическая ошибка. Ожидается "="
// trace: line: 1 pos: 6 func: textExec file: localProgram.cpp
// trace: char: 84 func: textExec file: localProgram.cpp
// expect status: 39
