// Keywords of statements are exact.
WHIL 1 DO x=2; ENDDO;   // expect status: 37
