? 1;                    // expect: 1


   // the end
