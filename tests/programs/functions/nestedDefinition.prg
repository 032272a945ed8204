// A function inside a function is known in there and nowhere else.
FUNCTION outer(x)
    FUNCTION inner(y) RETURN x+y; ENDFUNCTION;
    RETURN inner(10);
ENDFUNCTION;
? outer(1);             // expect: 11
? outer(2);             // expect: 12
? inner(1);             // expect status: 27
// expect:
// trace: >> inner() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Метод не существует. Возможно в декларации класса для него не установлена функция EXEC. func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: inner(1) func: execute file: localExecution.cpp
// trace: ERROR!!! Метод не существует. Возможно в декларации класса для него не установлена функция EXEC. in  expression. func: execute file: localExecution.cpp
// trace: Expression below: inner(1) in  expression func: execute file: localExecution.cpp
// trace: Метод не существует. Возможно в декларации класса для него не установлена функция EXEC. func: textExec file: localProgram.cpp
