? // the value stands on the next line
  1 // one
  + // plus
	2 // two
  ;                     // expect: 3
?1;                     // expect: 1
?"a"
    // between
    +"b"; // expect: ab
