l = РАЗОБРАТЬJSON('{"a": 1]');
// trace: Json pos :7( line:1, pos: 7) func: scanStringParseJson file: localJsonReader.cpp
// expect:
// trace: >> РАЗОБРАТЬJSON() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Ошибка разбора формата JSON! func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// expect:
// trace: >> L=РАЗОБРАТЬJSON('{"a": 1]');  func: execute file: localExecution.cpp
// trace: ERROR!!! Ошибка разбора формата JSON! func: execute file: localExecution.cpp
// trace: Ошибка разбора формата JSON! func: textExec file: localProgram.cpp
// expect status: 34
