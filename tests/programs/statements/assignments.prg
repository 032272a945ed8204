a = 5;
? a;                    // expect: 5
a = "text";
? a;                    // expect: text
a = 1=1;
? a;                    // expect: ИСТИНА
b = a;
a = 7;
? b;                    // expect: ИСТИНА
a=a+a*a;
? a;                    // expect: 56
