FOR i=1 TO "3" DO ? i; ENDDO;           // expect status: 50
// trace: ERROR!!! func: execute file: localExecution.cpp
// trace: Неверный тип операнда (-ов)! func: textExec file: localProgram.cpp
