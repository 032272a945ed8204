ФУНКЦИЯ f RETURN 1; КОНЕЦФУНКЦИИ;
// expect: ФУНКЦИЯ f RETURN 1; КОНЕЦФУНКЦИИ;
// expect: Синтаксическая ошибка. Ожидается "("
// trace: line: 1 pos: 9 func: textExec file: localProgram.cpp
// trace: char: 32 func: textExec file: localProgram.cpp
// expect status: 40
