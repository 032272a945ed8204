// The loop's condition begins with the name, so NOTE reads as NOT and E there.
FOR NOTE=1 TO 2 DO ? 1; ENDDO;          // expect status: 10
// trace: ERROR!!! func: execute file: localExecution.cpp
// trace: Неверный атрибут. func: textExec file: localProgram.cpp
