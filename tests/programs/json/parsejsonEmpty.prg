// Empty brackets, and an opening bracket that ends the text, are empty lists.
l = PARSEJSON("{}");
? l.SIZE();                                                 // expect: 0
l = PARSEJSON(" [ ] ");
? l.SIZE();                                                 // expect: 0
l = PARSEJSON("[ ");
? l.SIZE();                                                 // expect: 0
