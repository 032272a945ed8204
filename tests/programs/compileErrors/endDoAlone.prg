? 1;
ENDDO;
// expect: ENDDO;
// expect: Непредвиденное использование зарезарвированного слова КонецЦикла (EndDo)
// trace: line: 2 pos: 5 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 2
