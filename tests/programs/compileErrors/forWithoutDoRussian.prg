ДЛЯ i=1 ПО 3 x=i; КОНЕЦЦИКЛА;
// expect: ДЛЯ i=1 ПО 3 x=i; КОНЕЦЦИКЛА;
// expect: Синтаксическая ошибка. Ожидается ключевое слово "ЦИКЛ" ("do")
// trace: line: 1 pos: 14 func: textExec file: localProgram.cpp
// trace: char: 61 func: textExec file: localProgram.cpp
// expect status: 43
