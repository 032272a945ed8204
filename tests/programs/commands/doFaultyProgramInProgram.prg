? "before";
DO "data/failsLate.prg";        // expect status: 21
? "never";
// expect: before
// expect: begun
// trace: 1/0 func: execute file: localExecution.cpp
// trace: ERROR!!! Деление на 0! in  expression. func: execute file: localExecution.cpp
// trace: Expression below: 1/0 in  expression func: execute file: localExecution.cpp
// trace: Деление на 0! func: textExec file: localProgram.cpp
// trace: Деление на 0! func: scanStringGetOperatorAndExec file: localCommand.cpp
// trace: =DO "data/failsLate.prg";  func: execute file: localExecution.cpp
// expect: Деление на 0!
// trace: ERROR!!! func: execute file: localExecution.cpp
// trace: Деление на 0! func: textExec file: localProgram.cpp
