FUNCTION f(a b) RETURN 1; ENDFUNCTION;
// expect: FUNCTION f(a b) RETURN 1; ENDFUNCTION;
// expect: Синтаксическая ошибка. Ожидается "("
// trace: line: 1 pos: 13 func: textExec file: localProgram.cpp
// trace: char: 98 func: textExec file: localProgram.cpp
// expect status: 40
