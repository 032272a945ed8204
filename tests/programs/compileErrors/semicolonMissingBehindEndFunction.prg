FUNCTION f() x=2; ENDFUNCTION
// expect: FUNCTION f() x=2; ENDFUNCTION
// expect: Синтаксическая ошибка. Ожидается ";"
// trace: line: 1 pos: 28 func: textExec file: localProgram.cpp
// trace: char: 78 func: textExec file: localProgram.cpp
// expect status: 42
y = 1;
