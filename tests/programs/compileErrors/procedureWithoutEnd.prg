// expect: PROCEDURE f() ? 1;
// expect: Синтаксическая ошибка. Ожидается ключевое слово "КОНЕЦФУНКЦИИ" ("endfunction")
// trace: line: 6 pos: 18 func: textExec file: localProgram.cpp
// trace: char: 0 func: textExec file: localProgram.cpp
// expect status: 46
PROCEDURE f() ? 1;
