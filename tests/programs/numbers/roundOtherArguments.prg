// Digits that are no number count as 0, and a third argument is not looked at.
? ROUND(2.56,"1");        // expect: 3
? ROUND(2.56,1=1);        // expect: 3
? ROUND(2.5,0,"x");       // expect: 3
? ROUND(2.25,1,7)=2.3;    // expect: ИСТИНА
