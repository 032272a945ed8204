// A folder is no file to read, a path it is.
STRINGAPPENDTOFILE("x","файл.txt");
? FILEEXIST("файл.txt");            // expect: ИСТИНА
? ФАЙЛСУЩЕСТВУЕТ("missing.txt");    // expect: ЛОЖЬ
? FILEEXIST("data");                // expect: ЛОЖЬ
? FILEEXIST("");                    // expect: ЛОЖЬ
? PATHEXIST("файл.txt");            // expect: ИСТИНА
? PATHEXIST("data");                // expect: ИСТИНА
? ПУТЬСУЩЕСТВУЕТ("missing");        // expect: ЛОЖЬ
? ПУТЬСУЩЕСТВУЕТ("");               // expect: ЛОЖЬ
