l = PARSEJSON('{"a": [[1, 2], {"b": [3]}], "c": {}}');
a = l.VALUEGETBYPRESENTATION("a");
? a.SIZE();                                                 // expect: 2
in1 = a.VALUEGET(1);
? in1.VALUEGET(2);                                          // expect: 2
in2 = a.VALUEGET(2);
b = in2.VALUEGETBYPRESENTATION("b");
? b.VALUEGET(1);                                            // expect: 3
c = l.VALUEGET(2);
? c.SIZE();                                                 // expect: 0
