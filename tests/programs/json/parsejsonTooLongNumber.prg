// A number of 17 characters is more than the language takes.
l = PARSEJSON("[12345678901234567]");
// trace: Json pos :18( line:1, pos: 18) func: scanStringParseJson file: localJsonReader.cpp
// expect:
// trace: >> PARSEJSON() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Ошибка точности! Возможно, указано число сослишком большим количеством значащих символов func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// expect:
// trace: >> L=PARSEJSON("[12345678901234567]");  func: execute file: localExecution.cpp
// trace: ERROR!!! Ошибка точности! Возможно, указано число сослишком большим количеством значащих символов func: execute file: localExecution.cpp
// trace: Ошибка точности! Возможно, указано число сослишком большим количеством значащих символов func: textExec file: localProgram.cpp
// expect status: 36
