FUNCTION f(x) RETURN 1/x; ENDFUNCTION;
? f(2);                 // expect: 0.5
? f(0);                 // expect status: 21
// trace: localCompiledOperatorTypeRENURN with expression [(1/x)] file: localExecution.cpp
// trace: ERROR!!! func: execute file: localExecution.cpp
// expect:
// trace: >> f() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Деление на 0! func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: f(0) func: execute file: localExecution.cpp
// trace: ERROR!!! Деление на 0! in  expression. func: execute file: localExecution.cpp
// trace: Expression below: f(0) in  expression func: execute file: localExecution.cpp
// trace: Деление на 0! func: textExec file: localProgram.cpp
