// AND is weaker than any comparison and needs no parentheses around them.
a = 1;
b = 2;
? a=1 AND b=2;              // expect: ИСТИНА
? a=1 AND b=3;              // expect: ЛОЖЬ
? a<b И b>=2 and a<>b;      // expect: ИСТИНА
