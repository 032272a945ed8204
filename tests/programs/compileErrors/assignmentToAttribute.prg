// A comparison whose right side is missing.
a.b = ;                 // expect status: 37
