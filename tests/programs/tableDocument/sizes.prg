// Widths belong to columns; the height of ROWHEIGHTSET is that of all rows, whatever the row.
sheet = CREATEOBJECT("TABLEDOCUMENT");
? sheet.COLUMNWIDTHGET(1);                        // expect: 85
? sheet.COLUMNWIDTHSET(2,120);                    // expect: 1
? sheet.КОЛОНКАШИРИНАПОЛУЧИТЬ(2);                 // expect: 120
? sheet.КОЛОНКАШИРИНАУСТАНОВИТЬ(2,0);             // expect: 1
? sheet.COLUMNWIDTHGET(2);                        // expect: 0
? sheet.COLUMNWIDTHGET(3);                        // expect: 85
sheet.COLUMNWIDTHSET(4294967295,1.5);
? sheet.COLUMNWIDTHGET(4294967295);               // expect: 2
? sheet.ROWHEIGHTGET(1);                          // expect: 20
? sheet.ROWHEIGHTSET(3,30);                       // expect: 1
? sheet.РЯДВЫСОТАПОЛУЧИТЬ(1);                     // expect: 30
? sheet.РЯДВЫСОТАУСТАНОВИТЬ(-5,40);               // expect: 1
? sheet.ROWHEIGHTGET(100);                        // expect: 40
