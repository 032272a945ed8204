// Cells are found by row and column; what was never set has the default cell's text.
sheet = CREATEOBJECT("TABLEDOCUMENT");
? sheet.CELLTEXTSET(2,3,"b3");                       // expect: 1
? sheet.ЯЧЕЙКАТЕКСТУСТАНОВИТЬ(1,1,"a1");             // expect: 1
? sheet.CELLTEXTSET(2,3,"again");                    // expect: 1
? sheet.CELLTEXTGET(2,3);                            // expect: again
? sheet.ЯЧЕЙКАТЕКСТПОЛУЧИТЬ(1,1);                    // expect: a1
? "["+sheet.CELLTEXTGET(3,2)+"]";                    // expect: []
// Numbers are rounded.
sheet.CELLTEXTSET(4.5,1.4,"rounded");
? sheet.CELLTEXTGET(5,1);                            // expect: rounded
? sheet.CELLTEXTGET(0.5,0.6);                        // expect: a1
// The last row and column of all.
sheet.CELLTEXTSET(4294967295,4294967295,"last");
? sheet.CELLTEXTGET(4294967295,4294967295);          // expect: last
