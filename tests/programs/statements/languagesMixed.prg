// The words of both languages are interchangeable within a construct.
IF 1=2 ТОГДА ? 1; ИНАЧЕ ? 2; ENDIF;     // expect: 2
ЕСЛИ 1=1 THEN ? 3; КОНЕЦЕСЛИ;           // expect: 3
FOR i=1 ПО 2 ЦИКЛ ? i; ENDDO;           // expect: 1
// expect: 2
ПОКА i<5 DO i = i+1; КОНЕЦЦИКЛА;
? i;                                    // expect: 5
