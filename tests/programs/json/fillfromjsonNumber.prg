// Texts and objects are the only values.
t = CREATEOBJECT("VALUETABLE");
t.FILLFROMJSON('{"a": "b",
  "c": 5}');
// trace: синтаксическая ошибка в строке 2 позиция 7 func: scanStringGetValueTableFromJson file: localJsonTableReader.cpp
// expect:   "c": 5}
// expect:
// trace: >> FILLFROMJSON() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Ошибка разбора формата JSON! func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// expect:
// expect: >> =t.FILLFROMJSON('{"a": "b",
// trace:   "c": 5}');  func: execute file: localExecution.cpp
// trace: ERROR!!! Ошибка разбора формата JSON! func: execute file: localExecution.cpp
// trace: Ошибка разбора формата JSON! func: textExec file: localProgram.cpp
// expect status: 34
