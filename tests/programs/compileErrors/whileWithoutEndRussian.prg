// expect: ПОКА 1 ЦИКЛ x=2;
// expect: Синтаксическая ошибка. Ожидается ключевое слово "КОНЕЦЦИКЛА" ("enddo")
// trace: line: 6 pos: 16 func: textExec file: localProgram.cpp
// trace: char: 0 func: textExec file: localProgram.cpp
// expect status: 44
ПОКА 1 ЦИКЛ x=2;
