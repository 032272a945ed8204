// A sheet is one object for all variables that hold it, and is written into a list as its text.
sheet = CREATEOBJECT("ТабличныйДокумент");
same = sheet;
same.CELLTEXTSET(1,1,"shared");
sheet = 1;
? same.CELLTEXTGET(1,1);                  // expect: shared
list = CREATEOBJECT("VALUELIST");
list.VALUEADD(same);
text = list.TOJSON();
? FIND(text,'"t": "OBJ","tN": "TABLEDOCUMENT"')>0;    // expect: ИСТИНА
? FIND(text,'"v": '+same.TOJSON())>0;     // expect: ИСТИНА
