// Two arguments need no comma between them.
FUNCTION pair(a, b) RETURN a*10+b; ENDFUNCTION;
? pair(1 2);            // expect: 12
? pair(1, 2);           // expect: 12
? pair(1 , 2);          // expect: 12
? pair( 1
    2 // the second
    );                  // expect: 12
? pair("a" "b");        // expect status: 50
// trace: localCompiledOperatorTypeRENURN with expression [(a*10+b)] file: localExecution.cpp
// trace: ERROR!!! func: execute file: localExecution.cpp
// expect:
// trace: >> pair() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Неверный тип операнда (-ов)! func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: pair("a" "b") func: execute file: localExecution.cpp
// trace: ERROR!!! Неверный тип операнда (-ов)! in  expression. func: execute file: localExecution.cpp
// trace: Expression below: pair("a" "b") in  expression func: execute file: localExecution.cpp
// trace: Неверный тип операнда (-ов)! func: textExec file: localProgram.cpp
