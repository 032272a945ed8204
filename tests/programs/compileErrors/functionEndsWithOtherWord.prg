FUNCTION f() ? 1; ENDDO;
// expect: FUNCTION f() ? 1; ENDDO;
// expect: Синтаксическая ошибка. Ожидается ключевое слово "КОНЕЦФУНКЦИИ" ("endfunction")
// trace: line: 1 pos: 23 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 46
