// A text in UTF-8, written and read back.
? STRINGAPPENDTOFILE("привет, Ёж","text.txt");   // expect: ИСТИНА
? STRINGFROMFILE("text.txt");                    // expect: привет, Ёж
? СТРОКАИЗФАЙЛА("text.txt");                     // expect: привет, Ёж
