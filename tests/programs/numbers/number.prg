// A number from a string, a number or a boolean.
? NUMBER("12.5");            // expect: 12.5
? NUMBER("  -7  ");          // expect: -7
? NUMBER("");                // expect: 0
? NUMBER("   ");             // expect: 0
? NUMBER("12abc");           // expect: 12
? NUMBER("abc");             // expect: 0
? NUMBER("1e3");             // expect: 1000
? NUMBER("0x1F");            // expect: 31
? NUMBER("+5");              // expect: 5
? NUMBER("1,5");             // expect: 1
? NUMBER("яяя");             // expect: 0
? NUMBER(5);                 // expect: 5
? NUMBER(1=1);               // expect: 1
? ЧИСЛО(1=2);                // expect: 0
? ЧИСЛО("7");                // expect: 7
