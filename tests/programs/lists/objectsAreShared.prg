// An item holds the object itself, not a copy.
inner = CREATEOBJECT("VALUELIST");
list = CREATEOBJECT("VALUELIST");
list.VALUEADD(inner);
inner.VALUEADD("seen");
again = list.VALUEGET(1);
? again.VALUEGET(1);                        // expect: seen
