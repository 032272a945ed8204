// Latin, Russian and ё go to capitals, all else stays.
? STRINGTOUPPER("abcZ1");                 // expect: ABCZ1
? СТРОКАВВЕРХНИЙРЕГИСТР("ёж");            // expect: ЁЖ
? UPPER("abc");                           // expect: ABC
? ВРЕГ("привет, я");                      // expect: ПРИВЕТ, Я
? UPPER(CHR(223)) = CHR(223);             // expect: ИСТИНА
