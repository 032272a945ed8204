DO "data/runsItself.prg";
