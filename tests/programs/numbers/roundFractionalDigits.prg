// Half a digit scales by the root of ten.
? ROUND(2.34567,1.5);     // expect: 2.3400854685246006426
? ROUND(2.34567,-0.5)=0;  // expect: ЛОЖЬ
