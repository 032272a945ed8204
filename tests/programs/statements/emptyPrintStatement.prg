PRINT;
print ;
? 1;                    // expect: 1
