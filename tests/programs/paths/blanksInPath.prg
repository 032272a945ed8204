// Blanks may stand behind a point, none before it.
x = classload("TEST");
o = createobject("TEST");
? o. GETINT();          // expect: 12121212
? o.
    SELF.  // myself
    GETINT();           // expect: 12121212
