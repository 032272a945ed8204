l = PARSEJSON("[1] and anything else ]");
? l.SIZE();                                                 // expect: 1
