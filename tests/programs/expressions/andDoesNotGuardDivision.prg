? (1=2) AND ((1/0)=1);      // expect status: 21
// trace: (1=2) AND ((1/0)=1) func: execute file: localExecution.cpp
// trace: ERROR!!! Деление на 0! in  expression. func: execute file: localExecution.cpp
// trace: Expression below: (1=2) AND ((1/0)=1) in  expression func: execute file: localExecution.cpp
// trace: Деление на 0! func: textExec file: localProgram.cpp
