x = 5;
? x.y;                  // expect status: 51
// trace: x.y func: execute file: localExecution.cpp
// trace: ERROR!!! Значение не является объектом. in  expression. func: execute file: localExecution.cpp
// trace: Expression below: x.y in  expression func: execute file: localExecution.cpp
// trace: Значение не является объектом. func: textExec file: localProgram.cpp
