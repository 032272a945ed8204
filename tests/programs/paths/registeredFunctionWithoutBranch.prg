? userdir();            // expect status: 27
