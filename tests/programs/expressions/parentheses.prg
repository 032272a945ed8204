? ((1+2))*3;            // expect: 9
? (((("a"))));          // expect: a
? ( 1 + 2 ) * ( 3 );    // expect: 9
