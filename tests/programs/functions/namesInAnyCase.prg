FUNCTION Сумма(Первое, second) RETURN первое+SECOND; ENDFUNCTION;
? СУММА(1, 2);          // expect: 3
? сумма(3, 4);          // expect: 7
