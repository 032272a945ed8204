// True on every system.
? ISWINDOWS();     // expect: ИСТИНА
