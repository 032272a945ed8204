// The log lies where the process was started, wherever the program goes.
CWD("data");
LOGWRITE("line");
? FILEEXIST("current.log");               // expect: ЛОЖЬ
? STRINGFROMFILE("../current.log");       // expect: line
