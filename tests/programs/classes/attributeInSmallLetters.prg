// Attributes are looked up as written, methods in capitals.
x = classload("TEST");
o = createobject("TEST");
? o.attribint;                  // expect status: 10
// trace: o.attribint func: execute file: localExecution.cpp
// trace: ERROR!!! Неверный атрибут. in  expression. func: execute file: localExecution.cpp
// trace: Expression below: o.attribint in  expression func: execute file: localExecution.cpp
// trace: Неверный атрибут. func: textExec file: localProgram.cpp
