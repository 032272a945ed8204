FOR i=1 TO 3 x=i; ENDDO;
// expect: FOR i=1 TO 3 x=i; ENDDO;
// expect: Синтаксическая ошибка. Ожидается ключевое слово "ЦИКЛ" ("do")
// trace: line: 1 pos: 14 func: textExec file: localProgram.cpp
// trace: char: 61 func: textExec file: localProgram.cpp
// expect status: 43
