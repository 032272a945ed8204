x = classload("TEST");
o = createobject("TEST");
? o.();                         // expect status: 27
