l = PARSEJSON("[1, 2e5]");
// trace: Json pos :5( line:1, pos: 5) func: scanStringParseJson file: localJsonReader.cpp
// expect:
// trace: >> PARSEJSON() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Ошибка разбора формата JSON! func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// expect:
// trace: >> L=PARSEJSON("[1, 2e5]");  func: execute file: localExecution.cpp
// trace: ERROR!!! Ошибка разбора формата JSON! func: execute file: localExecution.cpp
// trace: Ошибка разбора формата JSON! func: textExec file: localProgram.cpp
// expect status: 34
