// It ends that program alone.
DO "data/returnsEarly.prg";             // expect: early
? "behind";                             // expect: behind
