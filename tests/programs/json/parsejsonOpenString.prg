l = PARSEJSON('["abc]');
// trace: Json Unabel resolve pos 6 in line with length 6 func: scanStringParseJson file: localJsonReader.cpp
// expect:
// trace: >> PARSEJSON() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Ошибка разбора формата JSON! func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// expect:
// trace: >> L=PARSEJSON('["abc]');  func: execute file: localExecution.cpp
// trace: ERROR!!! Ошибка разбора формата JSON! func: execute file: localExecution.cpp
// trace: Ошибка разбора формата JSON! func: textExec file: localProgram.cpp
// expect status: 34
