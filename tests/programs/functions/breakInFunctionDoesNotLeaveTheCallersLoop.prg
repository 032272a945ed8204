FUNCTION f() ПРЕРВАТЬ; ENDFUNCTION;
FOR i=1 TO 3 DO
    ? i;                // expect: 1
    x = f();            // expect status: 19
ENDDO;
// expect:
// trace: >> f() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Команда BREAK (ПРЕРВАТЬ) встретилась вне цикла. func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// expect:
// trace: >> X=f();  func: execute file: localExecution.cpp
// trace: ERROR!!! Команда BREAK (ПРЕРВАТЬ) встретилась вне цикла. func: execute file: localExecution.cpp
// trace: Команда BREAK (ПРЕРВАТЬ) встретилась вне цикла. func: textExec file: localProgram.cpp
