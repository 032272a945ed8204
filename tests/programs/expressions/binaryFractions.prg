// Numbers are binary: a sum of fractions need not be the fraction of the sum.
? (0.1+0.2)=0.3;        // expect: ЛОЖЬ
? (0.5+0.25)=0.75;      // expect: ИСТИНА
