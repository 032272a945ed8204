// Escapes are resolved; a backslash before brackets or an unknown letter stays, as an incomplete code does.
l = PARSEJSON('["a\[b", "\u0416", "\"\\\/", "\q\u12", "a\tb"]');
? l.VALUEGET(1);                                            // expect: a\[b
? STRINGLEN(l.VALUEGET(1));                                 // expect: 4
? l.VALUEGET(2);                                            // expect: Ж
? STRINGLEN(l.VALUEGET(2));                                 // expect: 1
? l.VALUEGET(3);                                            // expect: "\/
? l.VALUEGET(4);                                            // expect: \q\u12
? l.VALUEGET(5) = ("a" + CHR(9) + "b");                      // expect: ИСТИНА
