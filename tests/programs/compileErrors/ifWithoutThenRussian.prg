ЕСЛИ 1 x=2; КОНЕЦЕСЛИ;
// expect: ЕСЛИ 1 x=2; КОНЕЦЕСЛИ;
// expect: Синтаксическая ошибка. Ожидается ключевое слово "ТОГДА" ("then")
// trace: line: 1 pos: 8 func: textExec file: localProgram.cpp
// trace: char: 61 func: textExec file: localProgram.cpp
// expect status: 47
