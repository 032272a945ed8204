// The smallest of one or more values of one type.
? MIN(1);                    // expect: 1
? MIN(3,1,2);                // expect: 1
? MIN("c","a","b");          // expect: a
? MIN("ab","abc");           // expect: ab
? MIN(1=1,1=2);              // expect: ЛОЖЬ
? МИН(-1,-2);                // expect: -2
