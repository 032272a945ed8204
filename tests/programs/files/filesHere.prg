// Without a folder the names are those of the working directory.
CWD("data/list/folder");
list = FILES();
? list.SIZE();                       // expect: 1
? list.VALUEGET(1);                  // expect: inside.txt
list = FILES("*.dat");
? list.SIZE();                       // expect: 0
CWD("..");
list = FILES("*.dat");
? list.VALUEGET(1);                  // expect: gamma.dat
