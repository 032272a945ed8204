// Numbers from 0 to 1 in steps of a 15-bit generator.
i = 0;
good = 0;
different = 0;
last = -1;
WHILE i<1000 DO
    r = RAND();
    s = СЛУЧАЙНОЕЧИСЛО();
    whole = ROUND(r*32767)/32767;
    IF (r>=0) AND (r<=1) AND (ABS(r-whole)<0.000000001) THEN good = good+1; ENDIF;
    IF r<>s THEN different = different+1; ENDIF;
    i = i+1;
ENDDO;
? good;                  // expect: 1000
? different>900;         // expect: ИСТИНА
