IF THEN x=2; ENDIF;
// expect: IF THEN x=2; ENDIF;
// expect: Синтаксическая ошибка. Ожидается ключевое слово "ТОГДА" ("then")
// trace: line: 1 pos: 9 func: textExec file: localProgram.cpp
// trace: char: 61 func: textExec file: localProgram.cpp
// expect status: 47
