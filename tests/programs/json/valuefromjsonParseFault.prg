v = VALUEFROMJSON('{"t": "NUM", "v": }');
// trace: 125 char :[}] func: scanStringParseJson file: localJsonReader.cpp
// trace: i=18 Error!!!  Read string =[] key : [v] func: scanStringParseJson file: localJsonReader.cpp
// expect:
// trace: >> VALUEFROMJSON() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Ошибка разбора формата JSON! func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// expect:
// trace: >> V=VALUEFROMJSON('{"t": "NUM", "v": }');  func: execute file: localExecution.cpp
// trace: ERROR!!! Ошибка разбора формата JSON! func: execute file: localExecution.cpp
// trace: Ошибка разбора формата JSON! func: textExec file: localProgram.cpp
// expect status: 34
