// A module whose value is not 1 did not load; that is no fault of the caller.
? MODULELOAD("data/modules/valueTwo.txt");  // expect: ЛОЖЬ
? "goes on";                                // expect: goes on
