FOR i=1/0 TO 3 DO ? i; ENDDO;           // expect status: 21
// expect:
// trace: >> I=1/0;  func: execute file: localExecution.cpp
// trace: ERROR!!! Деление на 0! func: execute file: localExecution.cpp
// trace: Деление на 0! func: textExec file: localProgram.cpp
