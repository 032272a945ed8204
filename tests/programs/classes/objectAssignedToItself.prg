x = classload("TEST");
a = createobject("TEST");
a = a;
? a.GETINT();                   // expect: 12121212
a = a.SELF;
? a.GETINT();                   // expect: 12121212
