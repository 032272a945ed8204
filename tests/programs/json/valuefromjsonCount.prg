v = VALUEFROMJSON();              // expect status: 31
// expect:
// trace: >> VALUEFROMJSON() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Неверное количество параметров! func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// expect:
// trace: >> V=VALUEFROMJSON();  func: execute file: localExecution.cpp
// trace: ERROR!!! Неверное количество параметров! func: execute file: localExecution.cpp
// trace: Неверное количество параметров! func: textExec file: localProgram.cpp
