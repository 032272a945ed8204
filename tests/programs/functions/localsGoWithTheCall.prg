FUNCTION f()
    fresh = 5;
    RETURN fresh;
ENDFUNCTION;
? f();                  // expect: 5
? fresh;                // expect status: 10
// trace: fresh func: execute file: localExecution.cpp
// trace: ERROR!!! Неверный атрибут. in  expression. func: execute file: localExecution.cpp
// trace: Expression below: fresh in  expression func: execute file: localExecution.cpp
// trace: Неверный атрибут. func: textExec file: localProgram.cpp
