DIR;                            // expect status: 37
