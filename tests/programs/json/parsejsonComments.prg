// Blanks and comments between elements are passed over; a comment ends with its line.
l = PARSEJSON(' // head
[1, // one, "two"
	2 // two
  ,3 // three ]
]');
? l.SIZE();                                                 // expect: 3
? l.VALUEGET(3);                                            // expect: 3
l = PARSEJSON('["a // b"]');
? l.VALUEGET(1);                                            // expect: a // b
