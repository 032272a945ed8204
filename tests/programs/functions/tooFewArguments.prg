FUNCTION f(a, b) RETURN a; ENDFUNCTION;
? f(1);                 // expect status: 31
// expect:
// trace: >> f() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Неверное количество параметров! func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: f(1) func: execute file: localExecution.cpp
// trace: ERROR!!! Неверное количество параметров! in  expression. func: execute file: localExecution.cpp
// trace: Expression below: f(1) in  expression func: execute file: localExecution.cpp
// trace: Неверное количество параметров! func: textExec file: localProgram.cpp
