v = ЗНАЧЕНИЕИЗJSON(1=1);          // expect status: 33
// expect:
// trace: >> ЗНАЧЕНИЕИЗJSON() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Неверный тип параметра (-ов)! func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// expect:
// trace: >> V=ЗНАЧЕНИЕИЗJSON(1=1);  func: execute file: localExecution.cpp
// trace: ERROR!!! Неверный тип параметра (-ов)! func: execute file: localExecution.cpp
// trace: Неверный тип параметра (-ов)! func: textExec file: localProgram.cpp
