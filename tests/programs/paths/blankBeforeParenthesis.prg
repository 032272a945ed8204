// f (x) reads the variable and stops at the parenthesis.
FUNCTION f(x) RETURN x; ENDFUNCTION;
f = 5;
? f (1);
// expect: ? f (1);
// expect: Синтаксическая ошибка. Ожидается ";"
// trace: line: 4 pos: 2 func: textExec file: localProgram.cpp
// trace: char: 102 func: textExec file: localProgram.cpp
// expect status: 42
