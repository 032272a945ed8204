КОНЕЦЦИКЛА;
// expect: КОНЕЦЦИКЛА;
// expect: Непредвиденное использование зарезарвированного слова КонецЦикла (EndDo)
// trace: line: 1 pos: 10 func: textExec file: localProgram.cpp
// trace: char: 59 func: textExec file: localProgram.cpp
// expect status: 2
