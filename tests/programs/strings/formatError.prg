// A faulty format is a text, not a status.
? FORMAT(1,"X5");             // expect: #FORMAT ERROR
? FORMAT(-1,"Ч1");            // expect: #FORMAT ERROR
? FORMAT(1,"Ч5.2..");         // expect: #FORMAT ERROR
? FORMAT(1,"Ч");              // expect: #FORMAT ERROR
? FORMAT(1,"Ч3.5");           // expect: #FORMAT ERROR
? FORMAT(1,"Ч5.2.,x");        // expect: #FORMAT ERROR
? FORMAT(1,"Ч(1)5");          // expect: #FORMAT ERROR
