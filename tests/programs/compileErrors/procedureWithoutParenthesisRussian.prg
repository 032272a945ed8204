ПРОЦЕДУРА f;            // expect status: 40
