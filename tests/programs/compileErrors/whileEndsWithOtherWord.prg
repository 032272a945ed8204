WHILE 1 DO x=2; ENDFUNCTION;
// expect: WHILE 1 DO x=2; ENDFUNCTION;
// expect: Синтаксическая ошибка. Ожидается ключевое слово "КОНЕЦЦИКЛА" ("enddo")
// trace: line: 1 pos: 27 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 44
