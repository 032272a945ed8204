// A module may load itself.
depth = 0;
? MODULELOAD("data/modules/self.txt");      // expect: ИСТИНА
? depth;                                    // expect: 5
