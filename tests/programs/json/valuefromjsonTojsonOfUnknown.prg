// An item that cannot be restored fails the list.
r = VALUEFROMJSON('[{"p": "a", "v": {"t": "QQQ"}}]');
// trace: typeMnemo=QQQ func: fromJsonValueList file: localJsonRestore.cpp
// expect:
// trace: >> VALUEFROMJSON() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Ошибка восстановления значения из строки JSON. В частности возникает когда в списке значений после парсинга JSON не хватает информации для воззтановления ValueDescription.  func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// expect:
// trace: >> R=VALUEFROMJSON('[{"p": "a", "v": {"t": "QQQ"}}]');  func: execute file: localExecution.cpp
// trace: ERROR!!! Ошибка восстановления значения из строки JSON. В частности возникает когда в списке значений после парсинга JSON не хватает информации для воззтановления ValueDescription.  func: execute file: localExecution.cpp
// trace: Ошибка восстановления значения из строки JSON. В частности возникает когда в списке значений после парсинга JSON не хватает информации для воззтановления ValueDescription.  func: textExec file: localProgram.cpp
// expect status: 35
