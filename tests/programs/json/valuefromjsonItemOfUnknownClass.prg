// Whatever is wrong inside, the list cannot be restored.
v = VALUEFROMJSON('{"t": "OBJ", "tN": "VALUELIST", "v": [{"p": "x", "v": {"t": "OBJ", "tN": "NO", "v": []}}]}');
// expect:
// trace: >> VALUEFROMJSON() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Ошибка восстановления значения из строки JSON. В частности возникает когда в списке значений после парсинга JSON не хватает информации для воззтановления ValueDescription.  func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// expect:
// trace: >> V=VALUEFROMJSON('{"t": "OBJ", "tN": "VALUELIST", "v": [{"p": "x", "v": {"t": "OBJ", "tN": "NO", "v": []}}]}');  func: execute file: localExecution.cpp
// trace: ERROR!!! Ошибка восстановления значения из строки JSON. В частности возникает когда в списке значений после парсинга JSON не хватает информации для воззтановления ValueDescription.  func: execute file: localExecution.cpp
// trace: Ошибка восстановления значения из строки JSON. В частности возникает когда в списке значений после парсинга JSON не хватает информации для воззтановления ValueDescription.  func: textExec file: localProgram.cpp
// expect status: 35
