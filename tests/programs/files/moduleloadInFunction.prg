// What a module brings stays in the scope of the function that loaded it, and goes with it.
FUNCTION load()
    MODULELOAD("data/modules/good.txt");
    RETURN twice(21);
ENDFUNCTION;
? load();                                   // expect: 42
? twice(1);                                 // expect status: 27
// expect:
// trace: >> twice() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Метод не существует. Возможно в декларации класса для него не установлена функция EXEC. func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: twice(1) func: execute file: localExecution.cpp
// trace: ERROR!!! Метод не существует. Возможно в декларации класса для него не установлена функция EXEC. in  expression. func: execute file: localExecution.cpp
// trace: Expression below: twice(1) in  expression func: execute file: localExecution.cpp
// trace: Метод не существует. Возможно в декларации класса для него не установлена функция EXEC. func: textExec file: localProgram.cpp
