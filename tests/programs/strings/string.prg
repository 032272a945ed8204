// Any value as text.
? STRING(5)+"!";              // expect: 5!
? STRING(0.1);                // expect: 0.10000000000000000555
? STRING("abc");              // expect: abc
? STRING(1=1);                // expect: ИСТИНА
? СТРОКА(1=2);                // expect: ЛОЖЬ
? СТРОКА(-7);                 // expect: -7
