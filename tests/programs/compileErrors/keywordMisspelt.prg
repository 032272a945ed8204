IFF 1 THEN x=2; ENDIF;
// expect: IFF 1 THEN x=2; ENDIF;
// expect: Синтаксическая ошибка.
// trace: line: 1 pos: 4 func: textExec file: localProgram.cpp
// trace: char: 49 func: textExec file: localProgram.cpp
// expect status: 37
