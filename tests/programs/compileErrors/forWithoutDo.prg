FOR i=1 TO 3 ? i; ENDDO;
// trace: ERROR!!! func: textCompile file: localCompiler.cpp
// expect: FOR i=1 TO 3 ? i; ENDDO;
// expect: Неизвестный статус возврата ном: 38
// trace: line: 1 pos: 16 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 38
