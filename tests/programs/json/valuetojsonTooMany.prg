? ЗНАЧЕНИЕВJSON(1, 2);            // expect status: 31
// expect:
// trace: >> ЗНАЧЕНИЕВJSON() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Неверное количество параметров! func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ЗНАЧЕНИЕВJSON(1, 2) func: execute file: localExecution.cpp
// trace: ERROR!!! Неверное количество параметров! in  expression. func: execute file: localExecution.cpp
// trace: Expression below: ЗНАЧЕНИЕВJSON(1, 2) in  expression func: execute file: localExecution.cpp
// trace: Неверное количество параметров! func: textExec file: localProgram.cpp
