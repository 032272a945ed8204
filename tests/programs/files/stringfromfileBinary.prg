// Bytes that are no text are read as some text: zero bytes stay, what is no UTF-8 becomes the unit 255.
BASE64APPENDTOFILE("AEEA/+KCrA==","bytes.bin");
text = STRINGFROMFILE("bytes.bin");
? STRINGLEN(text);                                           // expect: 7
? STRINGPARTLEFT(text,3) = (CHR(0)+"A"+CHR(0));              // expect: ИСТИНА
? STRINGPARTRIGHT(text,4) = (CHR(255)+CHR(255)+CHR(255)+CHR(255));  // expect: ИСТИНА
