n = 2;
WHILE 1/n DO ? n; n = n-1; ENDDO;       // expect: 2
// expect: 1
// trace: ERROR!!! func: execute file: localExecution.cpp
// trace: Деление на 0! func: textExec file: localProgram.cpp
// expect status: 21
