// The formula holds for any digits: a scale that no number can hold leaves none.
? ROUND(1.5,308);         // expect: 1.5
a = ROUND(5,400);
? a=a;                    // expect: ЛОЖЬ
b = ROUND(1.5,-400);
? b=b;                    // expect: ЛОЖЬ
? ROUND(NUMBER("1e300"),100)>NUMBER("1e308");   // expect: ИСТИНА
