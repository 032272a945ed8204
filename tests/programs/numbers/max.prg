// The largest of one or more values of one type.
? MAX(1);                    // expect: 1
? MAX(1,3,2);                // expect: 3
? MAX("a","c","b");          // expect: c
? MAX("Z","a");              // expect: a
? MAX("ab","abc");           // expect: abc
? MAX(1=2,1=1);              // expect: ИСТИНА
? МАКС(-1,-2);               // expect: -1
