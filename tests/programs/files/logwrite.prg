// One line a call at the end of the log.
? LOGWRITE("первая");       // expect: 1
LOGWRITE(5);
LOGWRITE(1=2);
? STRINGFROMFILE("current.log");
// expect: первая
// expect: 5
// expect: ЛОЖЬ
