// OR is the tightest of all: a=1 OR b=2 is a=(1 OR b)=2.
a = 1;
b = 2;
? (a=5) OR (b=2);           // expect: ИСТИНА
? (1=1) = (1=2) OR (1=1);   // expect: ИСТИНА
? a=1 OR b=2;               // expect status: 16
// trace: a=1 OR b=2 func: execute file: localExecution.cpp
// trace: ERROR!!! Ошибка кода. Проверьте консольный вывод. Обратитесь к разработчику. in  expression. func: execute file: localExecution.cpp
// trace: Expression below: a=1 OR b=2 in  expression func: execute file: localExecution.cpp
// trace: Ошибка кода. Проверьте консольный вывод. Обратитесь к разработчику. func: textExec file: localProgram.cpp
