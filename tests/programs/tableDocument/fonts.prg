// What the text says of a font: family and size as set, or their defaults; a flag each.
FUNCTION fontOf(sheet)
    text = sheet.TOJSON();
    from = FIND(text,"fontFamily")-1;
    part = STRINGPARTRIGHT(text,(STRINGLEN(text)-from)+1);
    part = STRINGPARTLEFT(part,FIND(part,"}")-1);
    RETURN STRINGPARTREPLACE(part,CHR(10),"");
ENDFUNCTION;
sheet = CREATEOBJECT("TABLEDOCUMENT");
? sheet.CELLFONTSET(1,1,"");              // expect: 1
? fontOf(sheet);
// expect: "fontFamily": "Sans Serif","fontSize":8
? sheet.ЯЧЕЙКАШРИФТУСТАНОВИТЬ(1,1,"Arial",12,8);    // expect: 1
? fontOf(sheet);
// expect: "fontFamily": "Arial","fontSize":12,"fontUnderline":1
sheet.CELLFONTSET(1,1,"",-1,-1);
? fontOf(sheet);
// expect: "fontFamily": "Arial","fontSize":12,"fontUnderline":1
sheet.CELLFONTSET(1,1,"",0,7);
? fontOf(sheet);
// expect: "fontFamily": "Arial","fontSize":12,"fontBold":1,"fontItalic":1,"fontStrikeout":1
sheet.CELLFONTSET(1,1,"Mono",9.5,0);
? fontOf(sheet);
// expect: "fontFamily": "Mono","fontSize":10
sheet.CELLFONTSET(1,1,"",-1.4,-0.6);
? fontOf(sheet);
// expect: "fontFamily": "Mono","fontSize":10
// A family's name may hold what the text must not end at, and comes back as it was.
other = CREATEOBJECT("TABLEDOCUMENT");
sheet.CELLFONTSET(1,1,'a"b\c [d] e');
? other.FROMJSON(sheet.TOJSON());         // expect: ИСТИНА
? fontOf(other)=fontOf(sheet);            // expect: ИСТИНА
