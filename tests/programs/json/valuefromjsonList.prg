// A list with a list inside survives; its boolean is the number 0 then.
l = CREATEOBJECT("VALUELIST");
m = CREATEOBJECT("VALUELIST");
m.VALUEADD("глубоко", "k");
m.VALUEADD(1=1);
l.VALUEADD(5, "n");
l.VALUEADD(m, "список");
l.VALUEADD("s");
r = VALUEFROMJSON(VALUETOJSON(l));
// trace: Это булево!!! func: fromJsonValueList file: localJsonRestore.cpp
? VALUETYPEASSTRING(r);                                     // expect: СПИСОКЗНАЧЕНИЙ
? r.SIZE();                                                 // expect: 3
? r.VALUEGETBYPRESENTATION("n");                            // expect: 5
? r.VALUEGET(3);                                            // expect: s
in = r.VALUEGETBYPRESENTATION("список");
? in.SIZE();                                                // expect: 2
? in.VALUEGETBYPRESENTATION("k");                           // expect: глубоко
? in.VALUEGET(2);                                           // expect: 0
