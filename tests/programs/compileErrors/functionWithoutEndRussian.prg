// expect: ФУНКЦИЯ f()
// expect: Синтаксическая ошибка. Ожидается ключевое слово "КОНЕЦФУНКЦИИ" ("endfunction")
// trace: line: 6 pos: 11 func: textExec file: localProgram.cpp
// trace: char: 0 func: textExec file: localProgram.cpp
// expect status: 46
ФУНКЦИЯ f()
