FUNCTION made() RETURN createobject("TEST"); ENDFUNCTION;
x = classload("TEST");
o = made();
? o.GETINT();           // expect: 12121212
