FOR i=1 3 DO ENDDO;
// expect: FOR i=1 3 DO ENDDO;
// expect: Синтаксическая ошибка. Ожидается ключевое слово "ПО" ("to")
// trace: line: 1 pos: 9 func: textExec file: localProgram.cpp
// trace: char: 32 func: textExec file: localProgram.cpp
// expect status: 48
