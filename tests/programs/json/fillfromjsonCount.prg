t = CREATEOBJECT("VALUETABLE");
t.FILLFROMJSON();                 // expect status: 31
// expect:
// trace: >> FILLFROMJSON() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Неверное количество параметров! func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// expect:
// trace: >> =t.FILLFROMJSON();  func: execute file: localExecution.cpp
// trace: ERROR!!! Неверное количество параметров! func: execute file: localExecution.cpp
// trace: Неверное количество параметров! func: textExec file: localProgram.cpp
