// Every comparison has its own place above arithmetic: = <> >= > <= < from weak to tight.
? 1=1=(2=2);            // expect: ИСТИНА
? (1=1)=1<2;            // expect: ИСТИНА
? (1=1)<>2<=1;          // expect: ИСТИНА
? (1=2)=2>=3;           // expect: ИСТИНА
? (1=1)=(1=2)<>(1=1);   // expect: ИСТИНА
