ENDPROCEDURE;           // expect status: 3
