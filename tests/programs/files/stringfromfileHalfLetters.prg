// Half a letter at the end of a line leaves the line end where it is.
BASE64APPENDTOFILE("YdAKYtEKY9A=","half.txt");
text = STRINGFROMFILE("half.txt");
? STRINGLEN(text);                                              // expect: 8
? text = ("a"+CHR(255)+CHR(10)+"b"+CHR(255)+CHR(10)+"c"+CHR(255));   // expect: ИСТИНА
