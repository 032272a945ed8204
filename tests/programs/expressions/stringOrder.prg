// Strings compare by code units, so capitals come first and Cyrillic behind Latin.
? "a"<"b";              // expect: ИСТИНА
? "B"<"a";              // expect: ИСТИНА
? "z"<"а";              // expect: ИСТИНА
? "Я"<"а";              // expect: ИСТИНА
? "ё">"я";              // expect: ИСТИНА
? "Ё"<"А";              // expect: ИСТИНА
? "a"<"aa";             // expect: ИСТИНА
? ""<"a";               // expect: ИСТИНА
? "10"<"9";             // expect: ИСТИНА
? "b">="b";             // expect: ИСТИНА
? "b"<="a";             // expect: ЛОЖЬ
? "b">"b";              // expect: ЛОЖЬ
