// Blank, tab and line feed go, a carriage return stays.
? "["+STRINGTRIMALL("  a b  ")+"]";       // expect: [a b]
? "["+STRINGTRIML("  a b  ")+"]";         // expect: [a b  ]
? "["+STRINGTRIMR("  a b  ")+"]";         // expect: [  a b]
? "["+СТРОКАСОКРЛП("  я  ")+"]";          // expect: [я]
? "["+СТРОКАСОКРЛ("  я  ")+"]";           // expect: [я  ]
? "["+СТРОКАСОКРП("  я  ")+"]";           // expect: [  я]
? "["+STRINGTRIMALL(CHR(9)+CHR(10)+" x"+CHR(10)+CHR(9))+"]";  // expect: [x]
? STRINGLEN(STRINGTRIMALL(CHR(13)+" x"+CHR(13)));             // expect: 4
? "["+STRINGTRIMALL("   ")+"]";           // expect: []
