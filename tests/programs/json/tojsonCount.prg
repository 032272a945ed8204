l = CREATEOBJECT("VALUELIST");
? l.TOJSON(1);                    // expect status: 31
