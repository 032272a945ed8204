t = 1=1;
f = 1=2;
? t AND f;      // expect: ЛОЖЬ
? t and t;      // expect: ИСТИНА
? t And f;      // expect: ЛОЖЬ
? t И t;        // expect: ИСТИНА
? t и f;        // expect: ЛОЖЬ
? f OR t;       // expect: ИСТИНА
? f or f;       // expect: ЛОЖЬ
? f oR t;       // expect: ИСТИНА
? f ИЛИ t;      // expect: ИСТИНА
? f или f;      // expect: ЛОЖЬ
? f иЛи t;      // expect: ИСТИНА
