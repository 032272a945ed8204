// Booleans are written as text and so come back as the number 0.
v = VALUEFROMJSON(VALUETOJSON(1=1));                        // expect: Это булево!!!
? v;                                                        // expect: 0
? VALUETYPEASSTRING(v);                                     // expect: ЧИСЛО
? VALUEFROMJSON('{"t": "BOO", "v": true}');
// expect: Это булево!!!
// expect: 1
