// Each list around the faulty one tells of it.
l = PARSEJSON('{"a":
[1, [2 3]]}');
// trace: Json pos :13( line:2, pos: 7) func: scanStringParseJson file: localJsonReader.cpp
// trace: Json pos :13( line:2, pos: 7) func: scanStringParseJson file: localJsonReader.cpp
// trace: Json pos :13( line:2, pos: 7) func: scanStringParseJson file: localJsonReader.cpp
// expect:
// trace: >> PARSEJSON() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Ошибка разбора формата JSON! func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// expect:
// expect: >> L=PARSEJSON('{"a":
// trace: [1, [2 3]]}');  func: execute file: localExecution.cpp
// trace: ERROR!!! Ошибка разбора формата JSON! func: execute file: localExecution.cpp
// trace: Ошибка разбора формата JSON! func: textExec file: localProgram.cpp
// expect status: 34
