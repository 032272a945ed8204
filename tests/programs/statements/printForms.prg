?1;             // expect: 1
?"a"+"b";       // expect: ab
?(1=1);         // expect: ИСТИНА
? 1; ? 2;       // expect: 1
// expect: 2
