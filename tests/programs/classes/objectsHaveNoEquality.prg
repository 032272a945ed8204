x = classload("TEST");
a = createobject("TEST");
? a=a;                          // expect status: 16
// trace: Не могу выполниить операцию номер [8] func: binaryOperationByEnumEvaluate file: localOperators.cpp
// trace: a=a func: execute file: localExecution.cpp
// trace: ERROR!!! Ошибка кода. Проверьте консольный вывод. Обратитесь к разработчику. in  expression. func: execute file: localExecution.cpp
// trace: Expression below: a=a in  expression func: execute file: localExecution.cpp
// trace: Ошибка кода. Проверьте консольный вывод. Обратитесь к разработчику. func: textExec file: localProgram.cpp
