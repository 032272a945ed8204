x = classload("TEST");
o = createobject("TEST");
? o.GETINTPLUS();               // expect status: 31
