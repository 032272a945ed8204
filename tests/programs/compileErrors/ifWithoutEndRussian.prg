// expect: ЕСЛИ 1 ТОГДА x=2;
// expect: Синтаксическая ошибка. Ожидается ключевое слово "КОНЕЦЕСЛИ" ("endif")
// trace: line: 6 pos: 17 func: textExec file: localProgram.cpp
// trace: char: 0 func: textExec file: localProgram.cpp
// expect status: 45
ЕСЛИ 1 ТОГДА x=2;
