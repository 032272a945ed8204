s = "";
FOR i=1 TO 200000 DO
    s = s+"ab";
ENDDO;
? STRINGLEN(s);
