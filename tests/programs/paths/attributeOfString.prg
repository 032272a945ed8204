x = "text";
? x.LENGTH;             // expect status: 51
// trace: x.LENGTH func: execute file: localExecution.cpp
// trace: ERROR!!! Значение не является объектом. in  expression. func: execute file: localExecution.cpp
// trace: Expression below: x.LENGTH in  expression func: execute file: localExecution.cpp
// trace: Значение не является объектом. func: textExec file: localProgram.cpp
