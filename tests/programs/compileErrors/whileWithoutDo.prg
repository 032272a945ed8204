WHILE 1 x=2; ENDDO;
// expect: WHILE 1 x=2; ENDDO;
// expect: Синтаксическая ошибка. Ожидается ключевое слово "ЦИКЛ" ("do")
// trace: line: 1 pos: 9 func: textExec file: localProgram.cpp
// trace: char: 61 func: textExec file: localProgram.cpp
// expect status: 43
