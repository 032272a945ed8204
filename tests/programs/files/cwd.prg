// The working directory, told and changed.
home = CWD();
? STRINGPARTRIGHT(home,5);                    // expect: /copy
? CWD("data");                                // expect: ИСТИНА
? STRINGPARTRIGHT(КАТАЛОГРАБОЧИЙ(),10);       // expect: /copy/data
? FILEEXIST("one.txt");                       // expect: ИСТИНА
? CWD("missing");                             // expect: ЛОЖЬ
? CWD("one.txt");                             // expect: ЛОЖЬ
? CWD("");                                    // expect: ЛОЖЬ
? STRINGPARTRIGHT(CWD(),10);                  // expect: /copy/data
? КАТАЛОГРАБОЧИЙ(home);                       // expect: ИСТИНА
? CWD()=home;                                 // expect: ИСТИНА
