x = classload("TEST");
o = createobject("TEST");
? o.SELF.SELF.ATTRIBINT;        // expect: 12121212
? o.SELF.GETINT();              // expect: 12121212
? o.ATTRIBINT+1;                // expect: 12121213
? o.SELF.SELF.GETINTPLUS(8);
// expect:  метод GETINTPLUS() thisObj->attribInt=12121212
// expect:  метод GETINTPLUS() количество параметров=1
// expect: 12121220
