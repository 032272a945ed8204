ДЛЯ i ПО 3 ЦИКЛ КОНЕЦЦИКЛА;
// expect: ДЛЯ i ПО 3 ЦИКЛ КОНЕЦЦИКЛА;
// expect: Синтаксическая ошибка. Ожидается "="
// trace: line: 1 pos: 6 func: textExec file: localProgram.cpp
// trace: char: 1055 func: textExec file: localProgram.cpp
// expect status: 39
