x = classload("TEST");
o = createobject("TEST");
? o.СТРОКА();                   // expect status: 27
