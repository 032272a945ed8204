// Numbers and texts come back with their type.
v = VALUEFROMJSON(VALUETOJSON(-2.5));
? v;                                                        // expect: -2.5
? VALUETYPEASSTRING(v);                                     // expect: ЧИСЛО
v = ЗНАЧЕНИЕИЗJSON(ЗНАЧЕНИЕВJSON("a/'б' \ " + CHR(9)));
? v = ("a/'б' \ " + CHR(9));                                  // expect: ИСТИНА
? VALUETYPEASSTRING(VALUEFROMJSON(VALUETOJSON("5")));       // expect: СТРОКА
? VALUEFROMJSON(VALUETOJSON(""));                           // expect:
