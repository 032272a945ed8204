// Its pattern is all the rest of the text, also the semicolon.
// expect: DISP FUNC ABS ;
// expect: Синтаксическая ошибка. Ожидается ";"
// trace: line: 7 pos: 14 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 42
DISP FUNC ABS ;
