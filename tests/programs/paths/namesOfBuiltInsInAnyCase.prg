? abs(0-1);             // expect: 1
? ABS(0-2);             // expect: 2
? aBs(0-3);             // expect: 3
? Врег("ё");            // expect: Ё
? upper("q");           // expect: Q
