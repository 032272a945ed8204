// The keys of an object are presentations, in the order of the text, repeated ones too.
l = РАЗОБРАТЬJSON('{"x": 5, "б/в": "y", "x": 6}');
? l.КОЛИЧЕСТВО();                                           // expect: 3
? l.ЗНАЧЕНИЕПРЕДСТАВЛЕНИЕПОЛУЧИТЬ(1);                       // expect: x
? l.ЗНАЧЕНИЕПРЕДСТАВЛЕНИЕПОЛУЧИТЬ(2);                       // expect: б/в
? l.ЗНАЧЕНИЕПОЛУЧИТЬПОПРЕДСТАВЛЕНИЮ("x");                   // expect: 5
? l.ЗНАЧЕНИЕПОЛУЧИТЬ(3);                                    // expect: 6
