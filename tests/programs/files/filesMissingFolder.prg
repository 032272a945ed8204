// A folder that is not there has no files.
list = FILES("*","missing");
? ISVALUELIST(list);                 // expect: ИСТИНА
? list.SIZE();                       // expect: 0
list = FILES("*","data/one.txt");
? list.SIZE();                       // expect: 0
list = FILES("*","");
? list.SIZE();                       // expect: 0
