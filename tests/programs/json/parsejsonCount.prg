l = PARSEJSON("[]", 1);           // expect status: 31
// expect:
// trace: >> PARSEJSON() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Неверное количество параметров! func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// expect:
// trace: >> L=PARSEJSON("[]", 1);  func: execute file: localExecution.cpp
// trace: ERROR!!! Неверное количество параметров! func: execute file: localExecution.cpp
// trace: Неверное количество параметров! func: textExec file: localProgram.cpp
