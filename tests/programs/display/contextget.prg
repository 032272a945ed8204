// The calling scope as an object: its functions are methods, its variables attributes.
word = "text";
c = CONTEXTGET();
? c.STRINGLEN("abc");                // expect: 3
? c.word;                            // expect: text
? VALUETYPEASSTRING(КОНТЕКСТПОЛУЧИТЬ());   // expect: КОНТЕКСТ
? c.NOSUCH(1);                       // expect status: 27
// expect:
// trace: >> NOSUCH() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Метод не существует. Возможно в декларации класса для него не установлена функция EXEC. func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: c.NOSUCH(1) func: execute file: localExecution.cpp
// trace: ERROR!!! Метод не существует. Возможно в декларации класса для него не установлена функция EXEC. in  expression. func: execute file: localExecution.cpp
// trace: Expression below: c.NOSUCH(1) in  expression func: execute file: localExecution.cpp
// trace: Метод не существует. Возможно в декларации класса для него не установлена функция EXEC. func: textExec file: localProgram.cpp
