x = classload("TEST");
o = createobject("TEST");
? o.NOBODY;                     // expect status: 10
// trace: o.NOBODY func: execute file: localExecution.cpp
// trace: ERROR!!! Неверный атрибут. in  expression. func: execute file: localExecution.cpp
// trace: Expression below: o.NOBODY in  expression func: execute file: localExecution.cpp
// trace: Неверный атрибут. func: textExec file: localProgram.cpp
