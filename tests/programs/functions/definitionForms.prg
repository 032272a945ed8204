// FUNCTION and PROCEDURE are interchangeable in both languages, and so are the words that end them.
FUNCTION f1(x) RETURN x+1; ENDFUNCTION;
PROCEDURE f2(x) RETURN x+2; ENDPROCEDURE;
ФУНКЦИЯ f3(x) ВОЗВРАТ x+3; КОНЕЦФУНКЦИИ;
ПРОЦЕДУРА f4(x) ВОЗВРАТ x+4; КОНЕЦПРОЦЕДУРЫ;
FUNCTION f5(x) RETURN x+5; КОНЕЦПРОЦЕДУРЫ;
Процедура f6(x) Возврат x+6; EndFunction;
? f1(0); // expect: 1
? f2(0); // expect: 2
? f3(0); // expect: 3
? f4(0); // expect: 4
? f5(0); // expect: 5
? f6(0); // expect: 6
