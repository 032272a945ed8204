? "before";
DO "data/quit.prg" ;
? "behind";
