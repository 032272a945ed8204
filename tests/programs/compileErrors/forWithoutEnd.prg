// expect: FOR i=1 TO 3 DO ? i;
// expect: Синтаксическая ошибка. Ожидается ключевое слово "КОНЕЦЦИКЛА" ("enddo")
// trace: line: 6 pos: 20 func: textExec file: localProgram.cpp
// trace: char: 0 func: textExec file: localProgram.cpp
// expect status: 44
FOR i=1 TO 3 DO ? i;
