// Two arguments need no comma between them.
FUNCTION pair(a, b) RETURN a*10+b; ENDFUNCTION;
? pair(1 2);            // expect: 12
? pair(1, 2);           // expect: 12
? pair(1 , 2);          // expect: 12
? pair( 1
    2 // the second
    );                  // expect: 12
? pair("a" "b");        // expect status: 50
