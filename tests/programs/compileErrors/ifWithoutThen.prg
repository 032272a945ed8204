IF 1 x=2; ENDIF;
// expect: IF 1 x=2; ENDIF;
// expect: Синтаксическая ошибка. Ожидается ключевое слово "ТОГДА" ("then")
// trace: line: 1 pos: 6 func: textExec file: localProgram.cpp
// trace: char: 61 func: textExec file: localProgram.cpp
// expect status: 47
