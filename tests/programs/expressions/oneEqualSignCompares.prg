a = 1=1;
? a;                    // expect: ИСТИНА
a = 2=1;
? a;                    // expect: ЛОЖЬ
