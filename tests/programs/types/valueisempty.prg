// A boolean counts the other way round here.
? VALUEISEMPTY("");              // expect: ИСТИНА
? VALUEISEMPTY("   ");           // expect: ИСТИНА
? VALUEISEMPTY(CHR(9)+CHR(10));  // expect: ИСТИНА
? VALUEISEMPTY("x");             // expect: ЛОЖЬ
? VALUEISEMPTY("  x");           // expect: ЛОЖЬ
? VALUEISEMPTY(0);               // expect: ИСТИНА
? VALUEISEMPTY(-1);              // expect: ЛОЖЬ
? VALUEISEMPTY(1=1);             // expect: ИСТИНА
? VALUEISEMPTY(1=2);             // expect: ЛОЖЬ
? ЗНАЧЕНИЕПУСТОЕ("");            // expect: ИСТИНА
