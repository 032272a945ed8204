v = VALUEFROMJSON('{"t": "OBJ", "tN": "NOSUCHCLASS", "v": []}');      // expect status: 14
// expect:
// trace: >> VALUEFROMJSON() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Неизвестный класс. func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// expect:
// trace: >> V=VALUEFROMJSON('{"t": "OBJ", "tN": "NOSUCHCLASS", "v": []}');  func: execute file: localExecution.cpp
// trace: ERROR!!! Неизвестный класс. func: execute file: localExecution.cpp
// trace: Неизвестный класс. func: textExec file: localProgram.cpp
