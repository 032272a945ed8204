DIR ;                           // expect: host: showDirectory
DIRECTORY // all of it
;                               // expect: host: showDirectory
