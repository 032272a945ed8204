s = 0;
i = 0;
WHILE (i<10000000) DO
    s = s+i;
    i = i+1;
ENDDO;
? s;
