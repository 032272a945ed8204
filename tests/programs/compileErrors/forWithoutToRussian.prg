ДЛЯ i=1 ЦИКЛ КОНЕЦЦИКЛА;
// expect: ДЛЯ i=1 ЦИКЛ КОНЕЦЦИКЛА;
// expect: Синтаксическая ошибка. Ожидается ключевое слово "ПО" ("to")
// trace: line: 1 pos: 12 func: textExec file: localProgram.cpp
// trace: char: 32 func: textExec file: localProgram.cpp
// expect status: 48
