? "before";
LOAD CLASS NOBODY ;             // expect status: 14
// expect: Пытаемся загрузить класс
// expect: before
// expect: Пытаемся загрузить класс
// expect: Пытаемся загрузить класс [NOBODY]
// trace: =LOAD CLASS NOBODY;  func: execute file: localExecution.cpp
// expect: Неизвестный класс.
// trace: ERROR!!! func: execute file: localExecution.cpp
// trace: Неизвестный класс. func: textExec file: localProgram.cpp
