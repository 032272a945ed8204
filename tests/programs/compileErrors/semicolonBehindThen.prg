IF 1 THEN; x=2; ENDIF;
// expect: IF 1 THEN; x=2; ENDIF;
// expect: Синтаксическая ошибка.
// trace: line: 1 pos: 9 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 37
