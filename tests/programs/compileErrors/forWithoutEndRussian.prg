// expect: ДЛЯ i=1 ПО 3 ЦИКЛ ? i;
// expect: Синтаксическая ошибка. Ожидается ключевое слово "КОНЕЦЦИКЛА" ("enddo")
// trace: line: 6 pos: 22 func: textExec file: localProgram.cpp
// trace: char: 0 func: textExec file: localProgram.cpp
// expect status: 44
ДЛЯ i=1 ПО 3 ЦИКЛ ? i;
