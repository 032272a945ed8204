ПОКА 1 x=2; КОНЕЦЦИКЛА;
// expect: ПОКА 1 x=2; КОНЕЦЦИКЛА;
// expect: Синтаксическая ошибка. Ожидается ключевое слово "ЦИКЛ" ("do")
// trace: line: 1 pos: 8 func: textExec file: localProgram.cpp
// trace: char: 61 func: textExec file: localProgram.cpp
// expect status: 43
