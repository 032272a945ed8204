FUNCTION f(inner) RETURN contextget(); ENDFUNCTION;
c = f(5);
? c.abs(1);                     // expect status: 18
// expect:
// trace: >> abs() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Контекст не задан. func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: c.abs(1) func: execute file: localExecution.cpp
// trace: ERROR!!! Контекст не задан. in  expression. func: execute file: localExecution.cpp
// trace: Expression below: c.abs(1) in  expression func: execute file: localExecution.cpp
// trace: Контекст не задан. func: textExec file: localProgram.cpp
