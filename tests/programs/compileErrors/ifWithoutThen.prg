IF 1 x=2; ENDIF;                // expect status: 47
// expect: IF 1 x=2; ENDIF;                // expect status: 47
// expect: Синтаксическая ошибка. Ожидается ключевое слово "ТОГДА" ("then")
