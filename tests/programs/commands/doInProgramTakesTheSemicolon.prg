// An unquoted name goes on to the next blank.
DO data/setsX.prg;              // expect status: 23
