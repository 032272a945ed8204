// A new sheet is its default cell, and its text is white on white.
sheet = CREATEOBJECT("TABLEDOCUMENT");
? VALUETYPEASSTRING(sheet);    // expect: ТАБЛИЧНЫЙДОКУМЕНТ
? sheet;                       // expect match: Табличный документ adr [0x*]
? sheet.СТРОКА();              // expect match: Табличный документ adr [0x*]
? CLASSLOADED("TABLEDOCUMENT");        // expect: ИСТИНА
? CLASSLOADED("ТабличныйДокумент");    // expect: ИСТИНА
? CLASSLOAD("TABLEDOCUMENT");          // expect: ИСТИНА
? sheet.TOJSON();
// expect: {
// expect: "type" : "SXL",
// expect: "cloumns" : [],
// expect: "rows" : [],
// expect: "cells" : [{
// expect: "rowNumber" : 0,
// expect: "colNumber" : 0,
// expect: "text" : "",
// expect: "details" : "",
// expect: "colorBorder":0,
// expect: "colorFon":16777215,
// expect: "colorPattern":0,
// expect: "colorText":16777215,
// expect: "alignmentH":1,
// expect: "alignmentV":128}
// expect: ]
// expect: }
