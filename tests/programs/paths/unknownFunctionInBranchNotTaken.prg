// Names are not looked up while a program is checked.
IF 1=2 THEN ? nobody(1).x; x = nobody2.y.z(); ENDIF;
// expect: IF 1=2 THEN ? nobody(1).x; x = nobody2.y.z(); ENDIF;
// expect: Синтаксическая ошибка. Ожидается ";"
// trace: line: 2 pos: 22 func: textExec file: localProgram.cpp
// trace: char: 41 func: textExec file: localProgram.cpp
// expect status: 42
