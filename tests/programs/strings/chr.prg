// One unit by its code, which is cut to 16 bits.
? CHR(65);                      // expect: A
? СИМВОЛ(1071);                 // expect: Я
? chr(65.9);                    // expect: A
? CHR(65536+66);                // expect: B
? STRINGLEN(CHR(0));            // expect: 1
? CHR(-65471);                  // expect: A
? STRINGLEN(CHR(NUMBER("1e300")));  // expect: 1
? STRINGLEN(CHR(NUMBER("nan")));    // expect: 1
