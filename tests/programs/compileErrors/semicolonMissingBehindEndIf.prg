IF 1 THEN x=2; ENDIF
// expect: IF 1 THEN x=2; ENDIF
// expect: Синтаксическая ошибка. Ожидается ";"
// trace: line: 1 pos: 19 func: textExec file: localProgram.cpp
// trace: char: 70 func: textExec file: localProgram.cpp
// expect status: 42
y = 1;
