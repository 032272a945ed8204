// 100000 open brackets are a fault like any other.
s = "[";
i = 1;
while (i < 100000) do
  s = s + "[";
  i = i + 1;
enddo;
l = PARSEJSON(s);
// trace: Json pos :60000( line:1, pos: 60000) func: scanStringParseJson file: localJsonReader.cpp
// expect:
// trace: >> PARSEJSON() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Ошибка разбора формата JSON! func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// expect:
// trace: >> L=PARSEJSON(s);  func: execute file: localExecution.cpp
// trace: ERROR!!! Ошибка разбора формата JSON! func: execute file: localExecution.cpp
// trace: Ошибка разбора формата JSON! func: textExec file: localProgram.cpp
// expect status: 34
