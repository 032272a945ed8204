STRINGAPPENDTOFILE("","empty.txt");
? "["+STRINGFROMFILE("empty.txt")+"]";     // expect: []
? FILEEXIST("empty.txt");                  // expect: ИСТИНА
