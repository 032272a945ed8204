// An object's number is 0.
x = classload("TEST");
o = createobject("TEST");
IF o THEN ? 1; ELSE ? 2; ENDIF;         // expect: 2
? o?1:2;                                // expect: 2
