// Only the chosen branch is computed.
? 1?2:1/0;              // expect: 2
? 0?1/0:3;              // expect: 3
? 1?2:unknownName;      // expect: 2
? 0?unknownFunction():3; // expect: 3
? (1=1)?"yes":"no";     // expect: yes
? (1=2)?"yes":"no";     // expect: no
? 0.001?"yes":"no";     // expect: yes
? (0-1)?"yes":"no";     // expect: no
? -1?"yes":"no";        // expect: no
? (1=1)?1:"a";          // expect: 1
