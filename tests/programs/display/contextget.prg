// The calling scope as an object: its functions are methods, its variables attributes.
word = "text";
c = CONTEXTGET();
? c.STRINGLEN("abc");                // expect: 3
? c.word;                            // expect: text
? VALUETYPEASSTRING(КОНТЕКСТПОЛУЧИТЬ());   // expect: КОНТЕКСТ
? c.NOSUCH(1);                       // expect status: 27
