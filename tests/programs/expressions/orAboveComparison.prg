// OR is the tightest of all: a=1 OR b=2 is a=(1 OR b)=2.
a = 1;
b = 2;
? (a=5) OR (b=2);           // expect: ИСТИНА
? (1=1) = (1=2) OR (1=1);   // expect: ИСТИНА
? a=1 OR b=2;               // expect status: 16
