// More digits than any number has change nothing; more in front than it has leave 0.
? ROUND(1.5,400);         // expect: 1.5
? ROUND(1.5,308);         // expect: 1.5
? ROUND(1.5,-400);        // expect: 0
? ROUND(NUMBER("1e300"),100)=NUMBER("1e300");   // expect: ИСТИНА
