// Eight digits of the date and the time behind them.
t = DATETIMESYSTEMGETASSTRING();
? STRINGLEN(t);                               // expect: 17
? FIND(t,":");                                // expect: 9
? FIND(t,":",9);                              // expect: 12
? FIND(t,":",12);                             // expect: 15
? NUMBER(STRINGPARTLEFT(t,4))>2020;           // expect: ИСТИНА
? STRINGLEN(ДАТАВРЕМЯСИСТЕМНАЯПОЛУЧИТЬКАКСТРОКА());   // expect: 17
