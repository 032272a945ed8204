// The conditional tests the operand just read, before the operation that waits for it.
? 1+0?2:3;              // expect: 4
? 1+1?2:3;              // expect: 3
? 2*0?5:6+1;            // expect: 14
? (1+0)?2:3;            // expect: 2
? 0-1?10:20;            // expect: -10
