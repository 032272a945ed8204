// Attributes are looked up as written, methods in capitals.
x = classload("TEST");
o = createobject("TEST");
? o.attribint;                  // expect status: 10
