// A unit 0 does not cut a file name short.
STRINGAPPENDTOFILE("kept","a.txt");
? FILEEXIST("a.txt"+CHR(0)+"b");    // expect: ЛОЖЬ
? PATHEXIST("a.txt"+CHR(0));        // expect: ЛОЖЬ
? FILEDELETE("a.txt"+CHR(0)+"b");   // expect: ЛОЖЬ
? STRINGFROMFILE("a.txt");          // expect: kept
