// "CP1251" and "CP866" as whole names; any other name means UTF-8.
STRINGAPPENDTOFILE("Яр","w.txt","CP1251");
? BASE64FROMFILE("w.txt");       // expect: 3/A=
STRINGAPPENDTOFILE("Яр","d.txt","CP866");
? BASE64FROMFILE("d.txt");       // expect: n+A=
STRINGAPPENDTOFILE("Яр","u.txt","UTF8");
? BASE64FROMFILE("u.txt");       // expect: 0K/RgA==
STRINGAPPENDTOFILE("Яр","n.txt");
? BASE64FROMFILE("n.txt");       // expect: 0K/RgA==
STRINGAPPENDTOFILE("Яр","p.txt","CP12");
? BASE64FROMFILE("p.txt");       // expect: 0K/RgA==
STRINGAPPENDTOFILE("Яр","s.txt","cp1251");
? BASE64FROMFILE("s.txt");       // expect: 0K/RgA==
STRINGAPPENDTOFILE("Яр","e.txt","");
? BASE64FROMFILE("e.txt");       // expect: 0K/RgA==
