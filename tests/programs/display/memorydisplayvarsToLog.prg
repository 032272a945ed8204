// Mode 1 writes to the log only, mode 2 to both, any other to the output.
alpha = 5;
? MEMORYDISPLAYVARS("ALPHA",1);                    // expect: 1
log = STRINGFROMFILE("current.log");
? FIND(log,"var [ALPHA]")>0;                       // expect: ИСТИНА
? FIND(log,"с шаблоном имени [ALPHA]")>0;          // expect: ИСТИНА
? FILEDELETE("current.log");                       // expect: ИСТИНА
MEMORYDISPLAYVARS("ALPHA",2);
// expect:
// expect: СПИСОК ПЕРЕМЕННЫХ *************** с шаблоном имени [ALPHA]
// expect match: в том числе список переменных *
// expect match: 0 [0x*] var [ALPHA] : *
// trace match: Accessible RAM:* func: dispMemo file: localContextListings.cpp
? FIND(STRINGFROMFILE("current.log"),"var [ALPHA]")>0;   // expect: ИСТИНА
FILEDELETE("current.log");
MEMORYDISPLAYVARS("NONE",3);
// expect:
// expect: СПИСОК ПЕРЕМЕННЫХ *************** с шаблоном имени [NONE]
// expect match: в том числе список переменных *
// trace match: Accessible RAM:* func: dispMemo file: localContextListings.cpp
? FILEEXIST("current.log");                        // expect: ЛОЖЬ
