t = CREATEOBJECT("VALUETABLE");
t.FILLFROMJSON(' [1]');
// trace: ошибка в строке 1 позиция 1 func: scanStringGetValueTableFromJson file: localJsonTableReader.cpp
// expect:  [1]
// expect:
// trace: >> FILLFROMJSON() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Ошибка разбора формата JSON! func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// expect:
// trace: >> =t.FILLFROMJSON(' [1]');  func: execute file: localExecution.cpp
// trace: ERROR!!! Ошибка разбора формата JSON! func: execute file: localExecution.cpp
// trace: Ошибка разбора формата JSON! func: textExec file: localProgram.cpp
// expect status: 34
