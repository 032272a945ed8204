FUNCTION f(x) ? "never"; RETURN x; ENDFUNCTION;
? f(1/0);               // expect status: 21
// trace: f(1/0) func: execute file: localExecution.cpp
// trace: ERROR!!! Деление на 0! in  expression. func: execute file: localExecution.cpp
// trace: Expression below: f(1/0) in  expression func: execute file: localExecution.cpp
// trace: Деление на 0! func: textExec file: localProgram.cpp
