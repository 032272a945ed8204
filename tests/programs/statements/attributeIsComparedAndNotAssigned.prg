// a.b = 1 compares and drops the outcome.
x = classload("TEST");
o = createobject("TEST");
o.ATTRIBINT = 1;
? o.ATTRIBINT;          // expect: 12121212
