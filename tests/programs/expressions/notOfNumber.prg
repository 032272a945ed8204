? !1;           // expect status: 50
// trace: !1 func: execute file: localExecution.cpp
// trace: ERROR!!! Неверный тип операнда (-ов)! in  expression. func: execute file: localExecution.cpp
// trace: Expression below: !1 in  expression func: execute file: localExecution.cpp
// trace: Неверный тип операнда (-ов)! func: textExec file: localProgram.cpp
