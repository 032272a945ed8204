// expect: ? 1;
// expect: Синтаксическая ошибка. Ожидается ключевое слово "КОНЕЦФУНКЦИИ" ("endfunction")
// trace: line: 7 pos: 4 func: textExec file: localProgram.cpp
// trace: char: 0 func: textExec file: localProgram.cpp
// expect status: 46
FUNCTION f()
? 1;
