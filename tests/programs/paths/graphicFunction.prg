? stringshow(1);        // expect status: 26
// expect:
// trace: >> stringshow() in ); func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: ERROR!!! Метод существует, но моожет быть применен только в графической версии. func: scanStringGetNameTokenAndEvaluete file: localScanner.cpp
// trace: stringshow(1) func: execute file: localExecution.cpp
// trace: ERROR!!! Метод существует, но моожет быть применен только в графической версии. in  expression. func: execute file: localExecution.cpp
// trace: Expression below: stringshow(1) in  expression func: execute file: localExecution.cpp
// trace: Метод существует, но моожет быть применен только в графической версии. func: textExec file: localProgram.cpp
