? VALUETOJSON("a/b\c'[1]{2}");    // expect: {"t": "STR","vP": "a\/b\\c\'\[1\]\{2\}","v": "a\/b\\c\'\[1\]\{2\}"}
? VALUETOJSON('"');               // expect: {"t": "STR","vP": "\"","v": "\""}
s = CHR(9) + CHR(10) + CHR(13) + CHR(12) + CHR(8);
? ЗНАЧЕНИЕВJSON(s);               // expect: {"t": "STR","vP": "\t\n\r\f\b","v": "\t\n\r\f\b"}
