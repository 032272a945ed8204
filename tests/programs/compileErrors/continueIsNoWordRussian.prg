ПОКА 1 ЦИКЛ ПРОДОЛЖИТЬ; КОНЕЦЦИКЛА;
// expect: ПОКА 1 ЦИКЛ ПРОДОЛЖИТЬ; КОНЕЦЦИКЛА;
// expect: Синтаксическая ошибка.
// trace: line: 1 pos: 22 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 37
