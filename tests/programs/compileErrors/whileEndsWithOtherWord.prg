WHILE 1 DO x=2; ENDFUNCTION;    // expect status: 44
