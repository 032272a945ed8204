// AND stands above arithmetic: 1+(1 AND 1) fails before the sum.
? 1+1 AND 1;                // expect status: 16
// trace: 1+1 AND 1 func: execute file: localExecution.cpp
// trace: ERROR!!! Ошибка кода. Проверьте консольный вывод. Обратитесь к разработчику. in  expression. func: execute file: localExecution.cpp
// trace: Expression below: 1+1 AND 1 in  expression func: execute file: localExecution.cpp
// trace: Ошибка кода. Проверьте консольный вывод. Обратитесь к разработчику. func: textExec file: localProgram.cpp
