? 7%0;          // expect status: 21
// trace: 7%0 func: execute file: localExecution.cpp
// trace: ERROR!!! Деление на 0! in  expression. func: execute file: localExecution.cpp
// trace: Expression below: 7%0 in  expression func: execute file: localExecution.cpp
// trace: Деление на 0! func: textExec file: localProgram.cpp
