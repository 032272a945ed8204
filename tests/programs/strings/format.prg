// Numbers go by the format language, anything else by its own text.
? "[" + FORMAT(1234.5,"Ч10.2") + "]";         // expect: [   1234.50]
? "[" + FORMAT(-5,"Ч(0)5") + "]";             // expect: [-0005]
? "[" + FORMAT(-5,"N5") + "]";                // expect: [   -5]
? "[" + FORMAT(1234567,"Ч25.0.,") + "]";      // expect: [                1,234,567]
? ФОРМАТ(1.5,"");                             // expect: 1.5
? "[" + ФОРМАТ(2.7,"Ч5") + "]";               // expect: [    2]
? FORMAT("text","Ч5");                        // expect: text
? FORMAT(1=1,"Ч5");                           // expect: ИСТИНА
