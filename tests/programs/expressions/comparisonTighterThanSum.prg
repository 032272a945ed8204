// i+1<n is i+(1<n): a number plus a boolean.
i = 1;
n = 3;
? (i+1)<n;      // expect: ИСТИНА
? i+1<n;        // expect status: 50
// trace: i+1<n func: execute file: localExecution.cpp
// trace: ERROR!!! Неверный тип операнда (-ов)! in  expression. func: execute file: localExecution.cpp
// trace: Expression below: i+1<n in  expression func: execute file: localExecution.cpp
// trace: Неверный тип операнда (-ов)! func: textExec file: localProgram.cpp
