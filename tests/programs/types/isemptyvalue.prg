// A string always counts as empty here.
? ISEMPTYVALUE("");                // expect: ИСТИНА
? ISEMPTYVALUE("x");               // expect: ИСТИНА
? ISEMPTYVALUE(0);                 // expect: ИСТИНА
? ISEMPTYVALUE(5);                 // expect: ЛОЖЬ
? ISEMPTYVALUE(1=1);               // expect: ЛОЖЬ
? ISEMPTYVALUE(1=2);               // expect: ИСТИНА
? ЭТОПУСТОЕЗНАЧЕНИЕ(CONTEXTGET()); // expect: ЛОЖЬ
? ЭТОПУСТОЕЗНАЧЕНИЕ(0);            // expect: ИСТИНА
