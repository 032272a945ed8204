IF 1=nobody THEN ? 1; ENDIF;            // expect status: 10
// expect:
// trace: >> = 1=nobody;  func: execute file: localExecution.cpp
// trace: ERROR!!! Неверный атрибут. func: execute file: localExecution.cpp
// trace: Неверный атрибут. func: textExec file: localProgram.cpp
