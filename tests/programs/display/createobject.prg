// An object by either name of its class.
CLASSLOAD("TEST");
a = CREATEOBJECT("TEST");
? a.GETINT();                        // expect: 12121212
b = СОЗДАТЬОБЪЕКТ("тест");
? b.SELF.GETINT() = b.GETINT();      // expect: ИСТИНА
