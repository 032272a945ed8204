x = classload("TEST");
o = createobject("TEST");
? o.ATTRIBINT();                // expect status: 27
