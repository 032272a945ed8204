// Empty lines at the start vanish, and the last line end with them; those between stay.
STRINGAPPENDTOFILE(CHR(10)+CHR(10)+"one"+CHR(10)+CHR(10)+"two"+CHR(10),"lines.txt");
text = STRINGFROMFILE("lines.txt");
? text;
// expect: one
// expect:
// expect: two
? STRINGLEN(text);      // expect: 8
