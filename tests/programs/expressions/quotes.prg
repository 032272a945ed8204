// Either quote may hold the other; there is no escape of any kind.
? "it's";               // expect: it's
? 'say "hi"';           // expect: say "hi"
? "";                   // expect:
? '';                   // expect:
? "a\nb\t\\";           // expect: a\nb\t\\
