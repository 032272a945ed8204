? 1?2+3:4+5;            // expect: 5
? 0?2+3:4+5;            // expect: 9
? 1?-2:-3;              // expect: -2
? 0?1:0?2:3;            // expect: 3
? 1?0?"a":"b":"c";      // expect: b
? (1?2:3)+10;           // expect: 12
? 1?(0?"a":"b"):"c";    // expect: b
