x = classload("TEST");
o = createobject("TEST");
? o.GETINT(1);                  // expect status: 31
