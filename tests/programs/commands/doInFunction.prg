// The program runs in the scope of the call.
FUNCTION f()
    DO "data/setsX.prg";
    RETURN x;
ENDFUNCTION;
? f();
// expect: set
// expect: 5
? x;                            // expect status: 10
// trace: x func: execute file: localExecution.cpp
// trace: ERROR!!! Неверный атрибут. in  expression. func: execute file: localExecution.cpp
// trace: Expression below: x in  expression func: execute file: localExecution.cpp
// trace: Неверный атрибут. func: textExec file: localProgram.cpp
