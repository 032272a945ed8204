FUNCTION f() BREAK; ENDFUNCTION;
? "before";             // expect: before
? f();                  // expect status: 19
// expect:
// trace: >> f() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Команда BREAK (ПРЕРВАТЬ) встретилась вне цикла. func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: f() func: execute file: localExecution.cpp
// trace: ERROR!!! Команда BREAK (ПРЕРВАТЬ) встретилась вне цикла. in  expression. func: execute file: localExecution.cpp
// trace: Expression below: f() in  expression func: execute file: localExecution.cpp
// trace: Команда BREAK (ПРЕРВАТЬ) встретилась вне цикла. func: textExec file: localProgram.cpp
