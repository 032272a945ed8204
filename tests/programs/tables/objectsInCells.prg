// A cell holds the object itself and lets go of it when it is written again.
list = CREATEOBJECT("VALUELIST");
table = CREATEOBJECT("VALUETABLE");
table.COLUMNADD("a");
table.ROWADD();
table.VALUESET(1,1,list);
list.VALUEADD("seen");
again = table.VALUEGET(1,1);
? again.VALUEGET(1);                                    // expect: seen
? STRINGPARTFIND(list.TOSTRING(),"links [4]")>0;        // expect: ИСТИНА
table.VALUESET(1,1,0);
? STRINGPARTFIND(list.TOSTRING(),"links [3]")>0;        // expect: ИСТИНА
