IF 1=1 THEN ? 1; ENDDO;
// trace: ERROR!!! func: textCompile file: localCompiler.cpp
// expect: IF 1=1 THEN ? 1; ENDDO;
// expect: Синтаксическая ошибка.
// trace: line: 1 pos: 22 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 37
