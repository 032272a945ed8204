ENDIF;                  // expect status: 4
// expect: ENDIF;                  // expect status: 4
// expect: Непредвиденное использование зарезарвированного слова КонецЕсли (EndIf)
