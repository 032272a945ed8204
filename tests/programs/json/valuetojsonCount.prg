? VALUETOJSON();                  // expect status: 31
// expect:
// trace: >> VALUETOJSON() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Неверное количество параметров! func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: VALUETOJSON() func: execute file: localExecution.cpp
// trace: ERROR!!! Неверное количество параметров! in  expression. func: execute file: localExecution.cpp
// trace: Expression below: VALUETOJSON() in  expression func: execute file: localExecution.cpp
// trace: Неверное количество параметров! func: textExec file: localProgram.cpp
