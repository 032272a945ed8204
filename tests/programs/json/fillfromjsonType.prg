t = CREATEOBJECT("VALUETABLE");
t.FILLFROMJSON(5);                // expect status: 33
// expect:
// trace: >> FILLFROMJSON() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Неверный тип параметра (-ов)! func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// expect:
// trace: >> =t.FILLFROMJSON(5);  func: execute file: localExecution.cpp
// trace: ERROR!!! Неверный тип параметра (-ов)! func: execute file: localExecution.cpp
// trace: Неверный тип параметра (-ов)! func: textExec file: localProgram.cpp
