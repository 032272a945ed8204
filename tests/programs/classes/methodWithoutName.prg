x = classload("TEST");
o = createobject("TEST");
? o.();                         // expect status: 27
// expect:
// trace: >> () in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Метод не существует. Возможно в декларации класса для него не установлена функция EXEC. func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: o.() func: execute file: localExecution.cpp
// trace: ERROR!!! Метод не существует. Возможно в декларации класса для него не установлена функция EXEC. in  expression. func: execute file: localExecution.cpp
// trace: Expression below: o.() in  expression func: execute file: localExecution.cpp
// trace: Метод не существует. Возможно в декларации класса для него не установлена функция EXEC. func: textExec file: localProgram.cpp
