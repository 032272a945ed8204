// A diagnostic line names the function, the source file and its line.
x = 1/0;                        // expect status: 21
// expect:
// trace: >> X=1/0;  func: execute file: localExecution.cpp
// trace: ERROR!!! Деление на 0! func: execute file: localExecution.cpp
// trace: Деление на 0! func: textExec file: localProgram.cpp
