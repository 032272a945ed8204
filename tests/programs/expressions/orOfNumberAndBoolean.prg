b = 1=1;
? 1 OR b;                   // expect status: 50
// trace: 1 OR b func: execute file: localExecution.cpp
// trace: ERROR!!! Неверный тип операнда (-ов)! in  expression. func: execute file: localExecution.cpp
// trace: Expression below: 1 OR b in  expression func: execute file: localExecution.cpp
// trace: Неверный тип операнда (-ов)! func: textExec file: localProgram.cpp
