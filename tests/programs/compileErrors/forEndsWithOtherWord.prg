FOR i=1 TO 3 DO ? i; ENDIF;
// expect: FOR i=1 TO 3 DO ? i; ENDIF;
// expect: Синтаксическая ошибка. Ожидается ключевое слово "КОНЕЦЦИКЛА" ("enddo")
// trace: line: 1 pos: 26 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 44
