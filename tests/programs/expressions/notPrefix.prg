// Not binds to the first operand alone, in any spelling.
? !(1=2);               // expect: ИСТИНА
? ! (1=1);              // expect: ЛОЖЬ
? НЕ (1=2);             // expect: ИСТИНА
? не(1=1);              // expect: ЛОЖЬ
? Не (1=1);             // expect: ЛОЖЬ
? нЕ (1=2);             // expect: ИСТИНА
? NOT (1=2);            // expect: ИСТИНА
? not(1=1);             // expect: ЛОЖЬ
? nOt (1=1);            // expect: ЛОЖЬ
? !(1=1) И (1=2);       // expect: ЛОЖЬ
? !(1=1) = (1=2);       // expect: ИСТИНА
? (NOT ЛОЖЬ) AND (НЕ ЛОЖЬ); // expect: ИСТИНА
