ЕСЛИ 1 ТОГДА x=2; ИНАЧЕЕСЛИ 2 x=3; КОНЕЦЕСЛИ;
// expect: ЕСЛИ 1 ТОГДА x=2; ИНАЧЕЕСЛИ 2 x=3; КОНЕЦЕСЛИ;
// expect: Синтаксическая ошибка. Ожидается ключевое слово "ТОГДА" ("then")
// trace: line: 1 pos: 31 func: textExec file: localProgram.cpp
// trace: char: 61 func: textExec file: localProgram.cpp
// expect status: 47
