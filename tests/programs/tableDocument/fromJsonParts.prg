// The first colour or alignment makes the format, the first font member the font.
FUNCTION partsOf(members)
    sheet = CREATEOBJECT("TABLEDOCUMENT");
    sheet.FROMJSON('{"cells":[{"rowNumber":1,"colNumber":1,'+members+'}]}');
    text = sheet.TOJSON();
    text = STRINGPARTRIGHT(text,STRINGLEN(text)-FIND(text,'"rowNumber" : 1'));
    text = STRINGPARTRIGHT(text,STRINGLEN(text)-FIND(text,"details")-14);
    RETURN STRINGPARTREPLACE(STRINGPARTLEFT(text,FIND(text,"}")-1),CHR(10),"");
ENDFUNCTION;
? partsOf('"colorText":255');
// expect: "colorBorder":0,"colorFon":16777215,"colorPattern":0,"colorText":255,"alignmentH":1,"alignmentV":128
? partsOf('"alignmentV":32,"colorFon":-1,"colorBorder":99999999999');
// expect: "colorBorder":2147483647,"colorFon":-1,"colorPattern":0,"colorText":0,"alignmentH":1,"alignmentV":32
? partsOf('"fontBold":1');               // expect: "fontFamily": "Sans Serif","fontSize":8,"fontBold":1
? partsOf('"fontBold":0,"fontItalic":-1,"fontStrikeout":2,"fontUnderline":true');
// expect: "fontFamily": "Sans Serif","fontSize":8,"fontStrikeout":1,"fontUnderline":1
? partsOf('"fontFamily":"","fontSize":0');    // expect: "fontFamily": "Sans Serif","fontSize":8
? partsOf('"fontFamily":"Mono","fontSize":99999999999');
// expect: "fontFamily": "Mono","fontSize":2147483647
