FUNCTION same(a) RETURN a; ENDFUNCTION;
? same(1);              // expect: 1
? same("text");         // expect: text
? same(1=1);            // expect: ИСТИНА
x = classload("TEST");
o = same(createobject("TEST"));
? o.GETINT();           // expect: 12121212
