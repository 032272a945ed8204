c = contextget();
? c.nobody;                     // expect status: 10
// trace: c.nobody func: execute file: localExecution.cpp
// trace: ERROR!!! Неверный атрибут. in  expression. func: execute file: localExecution.cpp
// trace: Expression below: c.nobody in  expression func: execute file: localExecution.cpp
// trace: Неверный атрибут. func: textExec file: localProgram.cpp
