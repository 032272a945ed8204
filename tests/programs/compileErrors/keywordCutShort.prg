// Keywords of statements are exact.
WHIL 1 DO x=2; ENDDO;
// expect: WHIL 1 DO x=2; ENDDO;
// expect: Синтаксическая ошибка.
// trace: line: 2 pos: 5 func: textExec file: localProgram.cpp
// trace: char: 49 func: textExec file: localProgram.cpp
// expect status: 37
