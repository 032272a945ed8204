FUNCTION f(a=1) RETURN 1; ENDFUNCTION;
// expect: FUNCTION f(a=1) RETURN 1; ENDFUNCTION;
// expect: Синтаксическая ошибка. Ожидается "("
// trace: line: 1 pos: 12 func: textExec file: localProgram.cpp
// trace: char: 61 func: textExec file: localProgram.cpp
// expect status: 40
