// A function may hand its own context out; it is no more when the call has ended.
FUNCTION f(inner) RETURN contextget(); ENDFUNCTION;
c = f(5);
? c.inner;                      // expect status: 18
// trace: c.inner func: execute file: localExecution.cpp
// trace: ERROR!!! Контекст не задан. in  expression. func: execute file: localExecution.cpp
// trace: Expression below: c.inner in  expression func: execute file: localExecution.cpp
// trace: Контекст не задан. func: textExec file: localProgram.cpp
