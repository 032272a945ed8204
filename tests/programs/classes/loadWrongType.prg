? classload(1);                 // expect status: 33
// expect:
// trace: >> classload() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Неверный тип параметра (-ов)! func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: classload(1) func: execute file: localExecution.cpp
// trace: ERROR!!! Неверный тип параметра (-ов)! in  expression. func: execute file: localExecution.cpp
// trace: Expression below: classload(1) in  expression func: execute file: localExecution.cpp
// trace: Неверный тип параметра (-ов)! func: textExec file: localProgram.cpp
