// A variable of such a name is kept and can never be read by it.
ИСТИНА = 5;
false = "text";
? ИСТИНА;               // expect: ИСТИНА
? FALSE;                // expect: ЛОЖЬ
