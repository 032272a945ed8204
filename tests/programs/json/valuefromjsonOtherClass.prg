v = ЗНАЧЕНИЕИЗJSON('{"t": "OBJ", "tN": "VALUETABLE", "v": []}');
// trace: Разбор jsonList для VALUETABLE не реализован! func: fromJsonValueList file: localJsonRestore.cpp
// expect:
// trace: >> ЗНАЧЕНИЕИЗJSON() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Ошибка восстановления значения из строки JSON. В частности возникает когда в списке значений после парсинга JSON не хватает информации для воззтановления ValueDescription.  func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// expect:
// trace: >> V=ЗНАЧЕНИЕИЗJSON('{"t": "OBJ", "tN": "VALUETABLE", "v": []}');  func: execute file: localExecution.cpp
// trace: ERROR!!! Ошибка восстановления значения из строки JSON. В частности возникает когда в списке значений после парсинга JSON не хватает информации для воззтановления ValueDescription.  func: execute file: localExecution.cpp
// trace: Ошибка восстановления значения из строки JSON. В частности возникает когда в списке значений после парсинга JSON не хватает информации для воззтановления ValueDescription.  func: textExec file: localProgram.cpp
// expect status: 35
