x = classload("TEST");
o = createobject("TEST");
? o.SELF.SELF.ATTRIBINT;        // expect: 12121212
? o.SELF.GETINT();              // expect: 12121212
? o.ATTRIBINT+1;                // expect: 12121213
? o.SELF.SELF.GETINTPLUS(8);
// trace:  метод GETINTPLUS() thisObj->attribInt=12121212 func: classImplementationMethodFunction file: localClassForTest.cpp
// trace:  метод GETINTPLUS() количество параметров=1 func: classImplementationMethodFunction file: localClassForTest.cpp
// expect: 12121220
