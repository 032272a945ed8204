// Behind ELSE no condition is read any more.
IF 1=2 THEN ? 1; ELSE ? 2; ELSEIF 1=1 THEN ? 3; ENDIF;
// expect: IF 1=2 THEN ? 1; ELSE ? 2; ELSEIF 1=1 THEN ? 3; ENDIF;
// expect: Синтаксическая ошибка. Ожидается ";"
// trace: line: 2 pos: 36 func: textExec file: localProgram.cpp
// trace: char: 49 func: textExec file: localProgram.cpp
// expect status: 42
