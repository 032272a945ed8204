// The word of another construct is read on as if it were ELSEIF, and a condition is missing behind it.
WHILE 1 DO IF 1 THEN x=2; ENDDO;
// trace: ERROR!!! func: textCompile file: localCompiler.cpp
// expect: WHILE 1 DO IF 1 THEN x=2; ENDDO;
// expect: Синтаксическая ошибка.
// trace: line: 2 pos: 31 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 37
