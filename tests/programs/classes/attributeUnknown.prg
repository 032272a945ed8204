x = classload("TEST");
o = createobject("TEST");
? o.NOBODY;                     // expect status: 10
