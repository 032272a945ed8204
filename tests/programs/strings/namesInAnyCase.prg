// Function names match in any case.
? stringLen("ab");      // expect: 2
? StringLen("ab");      // expect: 2
? строкаДлина("ab");    // expect: 2
