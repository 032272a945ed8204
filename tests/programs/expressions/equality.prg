? 1=1;                  // expect: ИСТИНА
? 1=2;                  // expect: ЛОЖЬ
? 1<>2;                 // expect: ИСТИНА
? "a"="a";              // expect: ИСТИНА
? "a"="A";              // expect: ЛОЖЬ
? "a"<>"a ";            // expect: ИСТИНА
? ""="";                // expect: ИСТИНА
? (1=1)=(2=2);          // expect: ИСТИНА
? ИСТИНА<>ЛОЖЬ;         // expect: ИСТИНА
? 0.1+0.2=0.3;          // expect status: 50
// trace: 0.1+0.2=0.3 func: execute file: localExecution.cpp
// trace: ERROR!!! Неверный тип операнда (-ов)! in  expression. func: execute file: localExecution.cpp
// trace: Expression below: 0.1+0.2=0.3 in  expression func: execute file: localExecution.cpp
// trace: Неверный тип операнда (-ов)! func: textExec file: localProgram.cpp
