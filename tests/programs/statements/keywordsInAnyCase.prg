if 1=1 Then ? 1; Else ? 2; EndIf;       // expect: 1
Если 1=2 тогда ? 1; иначе ? 2; КонецЕсли; // expect: 2
i = 0;
While i<2 do i = i+1; EndDo;
? i;                                    // expect: 2
Пока i<4 цикл i = i+1; КонецЦикла;
? i;                                    // expect: 4
For i=1 to 2 Do ? i; EndDo;             // expect: 1
// expect: 2
Для i=3 По 4 Цикл ? i; КонецЦикла;      // expect: 3
// expect: 4
