? nobody();             // expect status: 27
// expect:
// trace: >> nobody() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Метод не существует. Возможно в декларации класса для него не установлена функция EXEC. func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: nobody() func: execute file: localExecution.cpp
// trace: ERROR!!! Метод не существует. Возможно в декларации класса для него не установлена функция EXEC. in  expression. func: execute file: localExecution.cpp
// trace: Expression below: nobody() in  expression func: execute file: localExecution.cpp
// trace: Метод не существует. Возможно в декларации класса для него не установлена функция EXEC. func: textExec file: localProgram.cpp
