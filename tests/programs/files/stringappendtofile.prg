// Each write goes behind what is there.
? STRINGAPPENDTOFILE("one","a.txt");             // expect: ИСТИНА
? СТРОКАДОБАВИТЬВФАЙЛ(" два","a.txt");           // expect: ИСТИНА
? STRINGFROMFILE("a.txt");                       // expect: one два
