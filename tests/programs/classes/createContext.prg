// A context is no registered class.
? createobject("CONTEXT");      // expect status: 14
// expect:
// trace: >> createobject() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Неизвестный класс. func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: createobject("CONTEXT") func: execute file: localExecution.cpp
// trace: ERROR!!! Неизвестный класс. in  expression. func: execute file: localExecution.cpp
// trace: Expression below: createobject("CONTEXT") in  expression func: execute file: localExecution.cpp
// trace: Неизвестный класс. func: textExec file: localProgram.cpp
