PROCEDURE f;            // expect status: 40
