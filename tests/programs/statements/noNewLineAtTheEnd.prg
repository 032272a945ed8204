? 1; // expect: 1
? 2 // expect: 2
;
