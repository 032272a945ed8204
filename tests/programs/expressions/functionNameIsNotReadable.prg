// The name of a built-in function in capitals is a member that has no value.
? ABS;                  // expect status: 8
// trace: ABS func: execute file: localExecution.cpp
// trace: ERROR!!! Атрибут не может быть прочитан. Возможно в декларации класса для него не установлена функция GET. in  expression. func: execute file: localExecution.cpp
// trace: Expression below: ABS in  expression func: execute file: localExecution.cpp
// trace: Атрибут не может быть прочитан. Возможно в декларации класса для него не установлена функция GET. func: textExec file: localProgram.cpp
