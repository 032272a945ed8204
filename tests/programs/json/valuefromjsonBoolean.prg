// Booleans are written as text and so come back as the number 0.
v = VALUEFROMJSON(VALUETOJSON(1=1));
// trace: Это булево!!! func: fromJsonValueList file: localJsonRestore.cpp
? v;                                                        // expect: 0
? VALUETYPEASSTRING(v);                                     // expect: ЧИСЛО
? VALUEFROMJSON('{"t": "BOO", "v": true}');
// trace: Это булево!!! func: fromJsonValueList file: localJsonRestore.cpp
// expect: 1
