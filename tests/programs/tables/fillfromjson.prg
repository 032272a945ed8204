table = CREATEOBJECT("VALUETABLE");
? table.FILLFROMJSON('{"a":"one","b":{"c":"two"}}');    // expect: ИСТИНА
? table.ROWSCOUNT();                                    // expect: 2
? table.COLUMNNAMEGET(1)+" "+table.COLUMNNAMEGET(2);    // expect: KEY VALUE
? table.VALUEGET(1,"key")+" "+table.VALUEGET(1,"value"); // expect: a one
inner = table.VALUEGET(2,"value");
? inner.VALUEGET(1,"value");                            // expect: two
