? "a""b";               // expect status: 42
