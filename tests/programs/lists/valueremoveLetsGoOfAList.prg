// The variable and the call itself hold the inner list, the item no longer does.
inner = CREATEOBJECT("VALUELIST");
list = CREATEOBJECT("VALUELIST");
list.VALUEADD(inner);
? STRINGPARTFIND(inner.TOSTRING(),"links [3]")>0;    // expect: ИСТИНА
list.VALUEREMOVE(1);
? STRINGPARTFIND(inner.TOSTRING(),"links [2]")>0;    // expect: ИСТИНА
