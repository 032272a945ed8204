// expect: WHILE 1 DO x=2;
// expect: Синтаксическая ошибка. Ожидается ключевое слово "КОНЕЦЦИКЛА" ("enddo")
// trace: line: 6 pos: 15 func: textExec file: localProgram.cpp
// trace: char: 0 func: textExec file: localProgram.cpp
// expect status: 44
WHILE 1 DO x=2;
