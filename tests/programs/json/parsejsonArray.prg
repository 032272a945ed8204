// Elements of an array have no presentation; null is the number 0.
l = PARSEJSON('[1, "два", true, null]');
? l.SIZE();                                                 // expect: 4
? l.VALUEGET(1);                                            // expect: 1
? VALUETYPEASSTRING(l.VALUEGET(1));                         // expect: ЧИСЛО
? l.VALUEGET(2);                                            // expect: два
? l.VALUEGET(3);                                            // expect: ИСТИНА
? l.VALUEGET(4);                                            // expect: 0
? VALUETYPEASSTRING(l.VALUEGET(4));                         // expect: ЧИСЛО
? "[" + l.VALUEPRESENTATIONGET(1) + l.VALUEPRESENTATIONGET(4) + "]"; // expect: []
