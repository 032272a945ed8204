// What TOJSON of a list wrote is a list again, with a list inside and without items.
l = CREATEOBJECT("VALUELIST");
m = CREATEOBJECT("VALUELIST");
m.VALUEADD("глубоко", "k");
l.VALUEADD(5, "n");
l.VALUEADD(m, "список");
l.VALUEADD("s");
r = VALUEFROMJSON(l.TOJSON());
? VALUETYPEASSTRING(r);                                     // expect: СПИСОКЗНАЧЕНИЙ
? r.SIZE();                                                 // expect: 3
? r.VALUEGETBYPRESENTATION("n")+1;                          // expect: 6
? r.VALUEGET(3);                                            // expect: s
in = r.VALUEGETBYPRESENTATION("список");
? in.VALUEGETBYPRESENTATION("k");                           // expect: глубоко
e = CREATEOBJECT("VALUELIST");
r = VALUEFROMJSON(e.TOJSON());
? VALUETYPEASSTRING(r);                                     // expect: СПИСОКЗНАЧЕНИЙ
? r.SIZE();                                                 // expect: 0
r = VALUEFROMJSON(" // пусто");                             // expect match: Json *
                                                            // expect status: 34
