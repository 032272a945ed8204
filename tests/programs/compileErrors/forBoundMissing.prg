// The word DO is read as a name, and the body begins with nothing.
FOR i=1 TO DO ? i; ENDDO;       // expect status: 38
