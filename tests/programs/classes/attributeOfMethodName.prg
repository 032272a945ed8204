x = classload("TEST");
o = createobject("TEST");
? o.GETINT;                     // expect status: 8
// trace: o.GETINT func: execute file: localExecution.cpp
// trace: ERROR!!! Атрибут не может быть прочитан. Возможно в декларации класса для него не установлена функция GET. in  expression. func: execute file: localExecution.cpp
// trace: Expression below: o.GETINT in  expression func: execute file: localExecution.cpp
// trace: Атрибут не может быть прочитан. Возможно в декларации класса для него не установлена функция GET. func: textExec file: localProgram.cpp
