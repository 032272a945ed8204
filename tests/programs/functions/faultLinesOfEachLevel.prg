FUNCTION inner(x) y = x-"a"; RETURN y; ENDFUNCTION;
FUNCTION outer(x) y = inner(x); RETURN y; ENDFUNCTION;
z = outer(1);           // expect status: 50
// expect:
// trace: >> Y=x-"a";  func: execute file: localExecution.cpp
// trace: ERROR!!! Неверный тип операнда (-ов)! func: execute file: localExecution.cpp
// expect:
// trace: >> inner() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Неверный тип операнда (-ов)! func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// expect:
// trace: >> Y=inner(x);  func: execute file: localExecution.cpp
// trace: ERROR!!! Неверный тип операнда (-ов)! func: execute file: localExecution.cpp
// expect:
// trace: >> outer() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Неверный тип операнда (-ов)! func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// expect:
// trace: >> Z=outer(1);  func: execute file: localExecution.cpp
// trace: ERROR!!! Неверный тип операнда (-ов)! func: execute file: localExecution.cpp
// trace: Неверный тип операнда (-ов)! func: textExec file: localProgram.cpp
