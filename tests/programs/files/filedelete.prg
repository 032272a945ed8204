// Only the file that is named goes.
STRINGAPPENDTOFILE("x","goes.txt");
STRINGAPPENDTOFILE("kept","stays.txt");
? FILEDELETE("goes.txt");           // expect: ИСТИНА
? FILEEXIST("goes.txt");            // expect: ЛОЖЬ
? FILEDELETE("goes.txt");           // expect: ЛОЖЬ
? ФАЙЛУДАЛИТЬ("");                  // expect: ЛОЖЬ
? ФАЙЛУДАЛИТЬ("data");              // expect: ЛОЖЬ
? PATHEXIST("data");                // expect: ИСТИНА
? STRINGFROMFILE("stays.txt");      // expect: kept
? ФАЙЛУДАЛИТЬ("stays.txt");         // expect: ИСТИНА
