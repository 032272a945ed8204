// A list that stands in two places is written in both.
l = CREATEOBJECT("VALUELIST");
m = CREATEOBJECT("VALUELIST");
m.VALUEADD("x");
l.VALUEADD(m);
l.VALUEADD(m);
r = VALUEFROMJSON(VALUETOJSON(l));
a = r.VALUEGET(1);
b = r.VALUEGET(2);
? a.VALUEGET(1) + b.VALUEGET(1);                            // expect: xx
