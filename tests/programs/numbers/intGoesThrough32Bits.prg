// What 32 bits cannot hold becomes their lowest number.
? INT(2147483647);        // expect: 2147483647
? INT(2147483647.9);      // expect: 2147483647
? INT(2147483648);        // expect: -2147483648
? INT(-2147483648);       // expect: -2147483648
? INT(-2147483648.9);     // expect: -2147483648
? INT(-2147483649);       // expect: -2147483648
? INT(NUMBER("1e300"));   // expect: -2147483648
? INT(NUMBER("nan"));     // expect: -2147483648
