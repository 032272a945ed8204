// Subtracting strings fails and leaves the status as it was, whose words say that all is well.
x = "a"-"b";            // expect status: 54
// expect:
// trace: >> X="a"-"b";  func: execute file: localExecution.cpp
// trace: ERROR!!! Ок. Ошибки отсутствуют func: execute file: localExecution.cpp
// trace: Ок. Ошибки отсутствуют func: textExec file: localProgram.cpp
