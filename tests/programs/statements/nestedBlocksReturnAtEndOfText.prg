// A program may not end inside a block: the block's own word is asked for.
// expect: ? 1;
// expect: Синтаксическая ошибка. Ожидается ключевое слово "КОНЕЦЦИКЛА" ("enddo")
// trace: line: 8 pos: 4 func: textExec file: localProgram.cpp
// trace: char: 0 func: textExec file: localProgram.cpp
// expect status: 44
WHILE 1 DO
? 1;
