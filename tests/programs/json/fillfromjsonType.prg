t = CREATEOBJECT("VALUETABLE");
t.FILLFROMJSON(5);                // expect status: 33
