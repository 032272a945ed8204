t = CREATEOBJECT("VALUETABLE");
t.FILLFROMJSON();                 // expect status: 31
