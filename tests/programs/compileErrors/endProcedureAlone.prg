ENDPROCEDURE;
// expect: ENDPROCEDURE;
// expect: Непредвиденное использование зарезарвированного слова КонецФункции (EndFunction)
// trace: line: 1 pos: 12 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 3
