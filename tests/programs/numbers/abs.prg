? ABS(-5);       // expect: 5
? abs(2.5);      // expect: 2.5
? ABS(0);        // expect: 0
