WHILE 1 DO x=2; ENDDO
// expect: WHILE 1 DO x=2; ENDDO
// expect: Синтаксическая ошибка. Ожидается ";"
// trace: line: 1 pos: 20 func: textExec file: localProgram.cpp
// trace: char: 79 func: textExec file: localProgram.cpp
// expect status: 42
y = 1;
