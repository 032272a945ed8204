IF 1 THEN x=2; ELSEIF 2 x=3; ENDIF;
// expect: IF 1 THEN x=2; ELSEIF 2 x=3; ENDIF;
// expect: Синтаксическая ошибка. Ожидается ключевое слово "ТОГДА" ("then")
// trace: line: 1 pos: 25 func: textExec file: localProgram.cpp
// trace: char: 61 func: textExec file: localProgram.cpp
// expect status: 47
