// Names sorted, folders among them, each with an empty presentation.
list = FILES("*","data/list");
? list.SIZE();                                // expect: 4
? list.VALUEGET(1);                           // expect: alpha.txt
? list.VALUEGET(2);                           // expect: beta.txt
? list.VALUEGET(3);                           // expect: folder
? list.VALUEGET(4);                           // expect: gamma.dat
? "["+list.VALUEPRESENTATIONGET(1)+"]";       // expect: []
