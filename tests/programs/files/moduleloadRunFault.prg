// A fault of the module is written out; the caller goes on.
? MODULELOAD("data/modules/runFault.txt");
// expect: run
// trace: 1/0 func: execute file: localExecution.cpp
// trace: ERROR!!! Деление на 0! in  expression. func: execute file: localExecution.cpp
// trace: Expression below: 1/0 in  expression func: execute file: localExecution.cpp
// trace: Деление на 0! func: textLoad file: localProgram.cpp
// expect: ЛОЖЬ
? "goes on";        // expect: goes on
