? ();                   // expect status: 37
