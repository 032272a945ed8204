// The backslash that is written before brackets and braces stays when they are read.
? VALUEFROMJSON(VALUETOJSON("[1]{2}"));                     // expect: \[1\]\{2\}
