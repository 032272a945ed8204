// CLEAR drops all cells and sizes; the new default cell has all defaults, its text is black.
sheet = CREATEOBJECT("TABLEDOCUMENT");
sheet.CELLTEXTSET(1,1,"gone");
sheet.COLUMNWIDTHSET(2,10);
sheet.ROWHEIGHTSET(1,7);
? sheet.CLEAR();                // expect: 1
? sheet.ОЧИСТИТЬ();             // expect: 1
? "["+sheet.CELLTEXTGET(1,1)+"]";    // expect: []
? sheet.COLUMNWIDTHGET(2);      // expect: 85
? sheet.ROWHEIGHTGET(1);        // expect: 20
text = sheet.TOJSON();
? FIND(text,'"colorText":0')>0;    // expect: ИСТИНА
