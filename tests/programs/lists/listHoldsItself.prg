list = CREATEOBJECT("VALUELIST");
list.VALUEADD(list);
list.VALUEADD(list,"self");
? list.SIZE();                              // expect: 2
inner = list.VALUEGETBYPRESENTATION("self");
inner.VALUEADD(3);
? list.SIZE();                              // expect: 3
// Without this its last holders would be its own items, and it would stay for ever.
list.CLEAR();
