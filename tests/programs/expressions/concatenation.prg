a = "раз";
? a+"два";              // expect: раздва
? a+" "+a+"!";          // expect: раз раз!
? a;                    // expect: раз
? ""+"";                // expect:
b = a;
b = b+b;
? a+b;                  // expect: разразраз
