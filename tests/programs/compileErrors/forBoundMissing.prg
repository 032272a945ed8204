// The word DO is read as a name, and the body begins with nothing.
FOR i=1 TO DO ? i; ENDDO;
// trace: ERROR!!! func: textCompile file: localCompiler.cpp
// expect: FOR i=1 TO DO ? i; ENDDO;
// expect: Неизвестный статус возврата ном: 38
// trace: line: 2 pos: 17 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 38
