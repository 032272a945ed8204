a = 1;
a = a+"b";              // expect status: 50
// expect:
// trace: >> A=a+"b";  func: execute file: localExecution.cpp
// trace: ERROR!!! Неверный тип операнда (-ов)! func: execute file: localExecution.cpp
// trace: Неверный тип операнда (-ов)! func: textExec file: localProgram.cpp
