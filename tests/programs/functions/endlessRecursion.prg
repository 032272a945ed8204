// The stack is guarded: the program fails, each call tells so, and the process goes on.
depth = 0;
FUNCTION f(x) depth = depth+1; RETURN f(x+1); ENDFUNCTION;
? f(1);                 // expect status: 16
// trace match: Слишком глубокая вложенность или рекурсия! func: * file: *.cpp
// expect many:
// trace many: >> DEPTH=depth+1;  func: execute file: localExecution.cpp
// trace many: ERROR!!! Ошибка кода. Проверьте консольный вывод. Обратитесь к разработчику. func: execute file: localExecution.cpp
// trace many: localCompiledOperatorTypeRENURN with expression [(f(x+1))] file: localExecution.cpp
// trace many: ERROR!!! func: execute file: localExecution.cpp
// trace many: >> f() in )) func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace many: ERROR!!! Ошибка кода. Проверьте консольный вывод. Обратитесь к разработчику. func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// expect:
// trace: >> f() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Ошибка кода. Проверьте консольный вывод. Обратитесь к разработчику. func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: f(1) func: execute file: localExecution.cpp
// trace: ERROR!!! Ошибка кода. Проверьте консольный вывод. Обратитесь к разработчику. in  expression. func: execute file: localExecution.cpp
// trace: Expression below: f(1) in  expression func: execute file: localExecution.cpp
// trace: Ошибка кода. Проверьте консольный вывод. Обратитесь к разработчику. func: textExec file: localProgram.cpp
