// НЕТ reads as НЕ and Т, NOTE as NOT and E.
Т = 1=1;
E = 1=2;
? НЕТ;          // expect: ЛОЖЬ
? нет;          // expect: ЛОЖЬ
? NOTE;         // expect: ИСТИНА
? Note;         // expect: ИСТИНА
? (NOTE) AND НЕТ; // expect status: 10
// trace: (NOTE) AND НЕТ func: execute file: localExecution.cpp
// trace: ERROR!!! Неверный атрибут. in  expression. func: execute file: localExecution.cpp
// trace: Expression below: (NOTE) AND НЕТ in  expression func: execute file: localExecution.cpp
// trace: Неверный атрибут. func: textExec file: localProgram.cpp
