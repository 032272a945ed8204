// "*" stands for any run of units, "?" for one.
list = FILES("*.txt","data/list");
? list.SIZE();                       // expect: 2
list = ФАЙЛЫ("*a*","data/list");
? list.SIZE();                       // expect: 3
list = FILES("?e*","data/list");
? list.SIZE();                       // expect: 1
? list.VALUEGET(1);                  // expect: beta.txt
list = FILES("????.txt","data/list");
? list.SIZE();                       // expect: 1
list = FILES("alpha.txt","data/list");
? list.SIZE();                       // expect: 1
list = FILES("alpha","data/list");
? list.SIZE();                       // expect: 0
list = FILES("*.*a*","data/list");
? list.SIZE();                       // expect: 1
list = FILES("**","data/list");
? list.SIZE();                       // expect: 4
list = FILES("","data/list");
? list.SIZE();                       // expect: 0
