x = classload("TEST");
o = createobject("TEST");
? o.ПОЛУЧИТЬЦЕЛОЕ();            // expect status: 27
