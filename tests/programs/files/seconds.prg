// Seconds since the year 2000 agree with the date; those of the process begin small and grow.
days = SECONDS20000101()/86400;
year = NUMBER(STRINGPARTLEFT(DATETIMESYSTEMGETASSTRING(),4));
? ABS(2000+(days/365.25)-year)<1.1;           // expect: ИСТИНА
? SECONDS20000101()=INT(SECONDS20000101());   // expect: ИСТИНА
begin = SECONDSTHISPROCESS();
? (begin>=0) AND (begin<3600);                // expect: ИСТИНА
? SECONDSTHISPROCESS()>=begin;                // expect: ИСТИНА
