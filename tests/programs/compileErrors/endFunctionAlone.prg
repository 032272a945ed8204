ENDFUNCTION;            // expect status: 3
// expect: ENDFUNCTION;            // expect status: 3
// expect: Непредвиденное использование зарезарвированного слова КонецФункции (EndFunction)
