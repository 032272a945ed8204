// A counter that the caller has already is the caller's.
i = "mine";
FUNCTION f() FOR i=1 TO 2 DO x = i; ENDDO; RETURN i; ENDFUNCTION;
? f();                  // expect: 3
? i;                    // expect: 3
FUNCTION g() FOR own=1 TO 2 DO x = own; ENDDO; RETURN own; ENDFUNCTION;
? g();                  // expect: 3
? own;                  // expect status: 10
// trace: own func: execute file: localExecution.cpp
// trace: ERROR!!! Неверный атрибут. in  expression. func: execute file: localExecution.cpp
// trace: Expression below: own in  expression func: execute file: localExecution.cpp
// trace: Неверный атрибут. func: textExec file: localProgram.cpp
