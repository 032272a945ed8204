// Shows nothing.
? MEMORYDISPLAY();         // expect: 1
? ПАМЯТЬПОКАЗАТЬ();        // expect: 1
