// Assignment copies the link and not the object.
x = classload("TEST");
a = createobject("TEST");
b = a;
a = 0;
? b.GETINT();                   // expect: 12121212
c = b.SELF;
b = "gone";
? c.GETINT();                   // expect: 12121212
