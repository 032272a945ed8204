// Numbers are those of the language: no exponent, up to 16 characters, "-" may stand apart.
l = PARSEJSON("[007, 0.5, - 3, -.5, 1234567890.12345]");
? l.VALUEGET(1);                                            // expect: 7
? l.VALUEGET(2);                                            // expect: 0.5
? l.VALUEGET(3);                                            // expect: -3
? l.VALUEGET(4);                                            // expect: -0.5
? FORMAT(l.VALUEGET(5), "N20.5");                           // expect:     1234567890.12345
