FOR i=1 TO 3 STEP 2 DO ENDDO;
// expect: FOR i=1 TO 3 STEP 2 DO ENDDO;
// expect: Синтаксическая ошибка. Ожидается ключевое слово "ЦИКЛ" ("do")
// trace: line: 1 pos: 17 func: textExec file: localProgram.cpp
// trace: char: 32 func: textExec file: localProgram.cpp
// expect status: 43
