// expect: IF 1 THEN x=2;
// expect: Синтаксическая ошибка. Ожидается ключевое слово "КОНЕЦЕСЛИ" ("endif")
// trace: line: 6 pos: 14 func: textExec file: localProgram.cpp
// trace: char: 0 func: textExec file: localProgram.cpp
// expect status: 45
IF 1 THEN x=2;
