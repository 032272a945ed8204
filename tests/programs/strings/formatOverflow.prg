// A number wider than its field becomes nines.
? FORMAT(999.999,"Ч5.2");     // expect: 999.9
? FORMAT(123456,"Ч5");        // expect: 99999
? FORMAT(-123456,"Ч5");       // expect: 99999
? FORMAT(NUMBER("1e300"),"Ч8.2");  // expect: 999999.9
