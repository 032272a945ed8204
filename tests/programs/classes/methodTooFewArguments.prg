x = classload("TEST");
o = createobject("TEST");
? o.GETINTPLUS();               // expect status: 31
// expect:
// trace: >> GETINTPLUS() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Неверное количество параметров! func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: o.GETINTPLUS() func: execute file: localExecution.cpp
// trace: ERROR!!! Неверное количество параметров! in  expression. func: execute file: localExecution.cpp
// trace: Expression below: o.GETINTPLUS() in  expression func: execute file: localExecution.cpp
// trace: Неверное количество параметров! func: textExec file: localProgram.cpp
