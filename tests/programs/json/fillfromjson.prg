// A row for each member; an object inside becomes a table.
t = CREATEOBJECT("VALUETABLE");
? t.FILLFROMJSON('{"a": "б\/в", // comment
  "c": {"d": "e"}} rest');                                  // expect: ИСТИНА
? t.ROWSCOUNT();                                            // expect: 2
? t.COLUMNSCOUNT();                                         // expect: 2
? t.COLUMNNAMEGET(1) + t.COLUMNNAMEGET(2);                  // expect: KEYVALUE
? t.VALUEGET(1, "key");                                     // expect: a
? t.VALUEGET(1, "value");                                   // expect: б/в
in = t.VALUEGET(2, 2);
? VALUETYPEASSTRING(in);                                    // expect: ТАБЛИЦАЗНАЧЕНИЙ
? in.VALUEGET(1, 1) + in.VALUEGET(1, 2);                    // expect: de
e = CREATEOBJECT("ТАБЛИЦАЗНАЧЕНИЙ");
? e.fillFromJson("{}");                                     // expect: ИСТИНА
? e.РЯДЫКОЛИЧЕСТВО();                                       // expect: 0
