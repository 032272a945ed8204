x = classload("TEST");
o = createobject("TEST");
? o.GETINT(1);                  // expect status: 31
// expect:
// trace: >> GETINT() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Неверное количество параметров! func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: o.GETINT(1) func: execute file: localExecution.cpp
// trace: ERROR!!! Неверное количество параметров! in  expression. func: execute file: localExecution.cpp
// trace: Expression below: o.GETINT(1) in  expression func: execute file: localExecution.cpp
// trace: Неверное количество параметров! func: textExec file: localProgram.cpp
