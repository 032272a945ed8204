? "first
second";                // expect: first
// expect: second
x = 'third
// not a comment
fourth';
? x;
// expect: third
// expect: // not a comment
// expect: fourth
