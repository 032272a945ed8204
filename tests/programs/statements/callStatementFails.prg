nobody(1);              // expect status: 27
// expect:
// trace: >> nobody() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Метод не существует. Возможно в декларации класса для него не установлена функция EXEC. func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// expect:
// trace: >> =nobody(1);  func: execute file: localExecution.cpp
// trace: ERROR!!! Метод не существует. Возможно в декларации класса для него не установлена функция EXEC. func: execute file: localExecution.cpp
// trace: Метод не существует. Возможно в декларации класса для него не установлена функция EXEC. func: textExec file: localProgram.cpp
