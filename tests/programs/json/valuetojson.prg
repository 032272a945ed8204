// Every value carries its type and its text; numbers and booleans are quoted.
? VALUETOJSON(5);                 // expect: {"t": "NUM","vP": "5","v": "5"}
? VALUETOJSON(-0.25);             // expect: {"t": "NUM","vP": "-0.25","v": "-0.25"}
? VALUETOJSON("слово");           // expect: {"t": "STR","vP": "слово","v": "слово"}
? VALUETOJSON("");                // expect: {"t": "STR","vP": "","v": ""}
? VALUETOJSON(1=1);               // expect: {"t": "BOO","vP": "ИСТИНА","v": "true"}
? ЗНАЧЕНИЕВJSON(1=2);             // expect: {"t": "BOO","vP": "ЛОЖЬ","v": "false"}
