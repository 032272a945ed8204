? PI() = NUMBER("3.141592653589793");   // expect: ИСТИНА
? ROUND(PI(),6)*1000000;                // expect: 3141593
