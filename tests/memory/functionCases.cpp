#include "memory/memoryCase.h"

namespace {

constexpr const char* list =
    "l = CREATEOBJECT(\"VALUELIST\"); l.VALUEADD(1, \"one\"); l.VALUEADD(\"a text of many units\", "
    "\"a long presentation\"); i = CREATEOBJECT(\"VALUELIST\"); i.VALUEADD(TRUE); l.VALUEADD(i);";

// Longer than what a string or a name holds without the heap.
const std::string quoted =
    "\"Some words of a text that is longer than sixty-four code units, to be "
    "sure of the heap\"";

const std::string file =
    "FILEDELETE(\"case.txt\"); STRINGAPPENDTOFILE(" + quoted + ", \"case.txt\");";

}  // namespace

std::vector<memoryCase> functionCases() {
    return {
        {.name = "CHR", .text = "CHR(1078)"},
        {.name = "FIND", .text = "FIND(" + quoted + ", \"heap\", 3)"},
        {.name = "FORMAT", .text = "FORMAT(1234567.891, \"N(0)30.10,'\")"},
        {.name = "STRING", .text = "STRING(0.1)"},
        {.name = "STRINGLEN", .text = "STRINGLEN(" + quoted + ")"},
        {.name = "STRINGPARTFIND",
         .text = "STRINGPARTFIND(" + quoted + ", \"sixty-four code units, to be\", 2)"},
        {.name = "STRINGPARTLEFT", .text = "STRINGPARTLEFT(" + quoted + ", 50)"},
        {.name = "STRINGPARTRIGHT", .text = "STRINGPARTRIGHT(" + quoted + ", 50)"},
        {.name = "STRINGPARTREPLACE",
         .text = "STRINGPARTREPLACE(" + quoted + ", \"e\", \"another\", 5)"},
        {.name = "STRINGSHOW", .text = "STRINGSHOW(l)", .setup = list},
        {.name = "STRINGTOUPPER", .text = "STRINGTOUPPER(" + quoted + ")"},
        {.name = "UPPER", .text = "UPPER(" + quoted + ")"},
        {.name = "STRINGTRIMALL", .text = "STRINGTRIMALL(\"  a text  \")"},
        {.name = "STRINGTRIML", .text = "STRINGTRIML(\"  a text  \")"},
        {.name = "STRINGTRIMR", .text = "STRINGTRIMR(\"  a text  \")"},
        {.name = "ABS", .text = "ABS(-1)"},
        {.name = "INT", .text = "INT(1.5)"},
        {.name = "MAX", .text = "MAX(\"a\", \"b\", \"c\", \"d\", \"e\", \"f\", \"g\", \"h\")"},
        {.name = "MIN", .text = "MIN(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15)"},
        {.name = "NUMBER", .text = "NUMBER(" + quoted + ")"},
        {.name = "PI", .text = "PI()"},
        {.name = "RAND", .text = "RAND()", .varies = true},
        {.name = "ROUND", .text = "ROUND(1.25, 1)"},
        {.name = "SQRT", .text = "SQRT(2)"},
        {.name = "IIF", .text = "IIF(TRUE, \"a\", \"b\")"},
        {.name = "ISEMPTYVALUE", .text = "ISEMPTYVALUE(\"\")"},
        {.name = "VALUEISEMPTY", .text = "VALUEISEMPTY(\" \")"},
        {.name = "ISVALUELIST", .text = "ISVALUELIST(l)", .setup = list},
        {.name = "ISVALUETABLE", .text = "ISVALUETABLE(1)"},
        {.name = "ISWINDOWS", .text = "ISWINDOWS()"},
        {.name = "PARSEJSON",
         .text =
             "x.VALUEADD(PARSEJSON('{\"name\":\"a value that is long\",\"list\":[1,-2,{\"deep\":"
             "[[[true]]],\"\\\\u0436\\\\n\":null}],\"name\":false}'))",
         .setup = "x = CREATEOBJECT(\"VALUELIST\");"},
        {.name = "VALUEFROMJSON",
         .text = "x.VALUEADD(VALUEFROMJSON(VALUETOJSON(l)))",
         .setup = std::string(list) + "x = CREATEOBJECT(\"VALUELIST\");"},
        {.name = "VALUETOJSON", .text = "STRINGLEN(VALUETOJSON(l))", .setup = list, .varies = true},
        {.name = "VALUETOSTRING", .text = "VALUETOSTRING(1)"},
        {.name = "VALUETYPEASSTRING", .text = "VALUETYPEASSTRING(l)", .setup = list},
        {.name = "BASE64APPENDTOFILE",
         .text =
             "BASE64APPENDTOFILE(\"0J/RgNC40LLQtdGCLCDQvNC40YAhINCf0YDQuNCy0LXRgiwg0LzQuNGAIQ==\""
             ", \"case.txt\")",
         .setup = file},
        {.name = "BASE64FROMFILE", .text = "BASE64FROMFILE(\"case.txt\")", .setup = file},
        {.name = "BINARYPATH", .text = "BINARYPATH()"},
        {.name = "CWD", .text = "CWD() + STRING(CWD(\".\"))"},
        {.name = "DATECHOOSEASSTRING", .text = "DATECHOOSEASSTRING()"},
        {.name = "DATETIMESYSTEMGETASSTRING",
         .text = "DATETIMESYSTEMGETASSTRING()",
         .varies = true},
        {.name = "FILEDELETE", .text = "FILEDELETE(\"case.txt\")", .setup = file},
        {.name = "FILEEXIST", .text = "FILEEXIST(\"case.txt\")", .setup = file},
        {.name = "FILES",
         .text = "x.VALUEADD(FILES(\"*.t?t\"))",
         .setup = file + "x = CREATEOBJECT(\"VALUELIST\");"},
        {.name = "LOGWRITE", .text = "LOGWRITE(" + quoted + ")"},
        {.name = "MESSAGE", .text = "MESSAGE(l)", .setup = list, .varies = true},
        {.name = "MESSAGEBOX", .text = "MESSAGEBOX(\"a\")"},
        {.name = "MODULELOAD",
         .text = "MODULELOAD(\"case.txt\")",
         .setup = "x = 1; FILEDELETE(\"case.txt\"); STRINGAPPENDTOFILE(\"x = 2; RETURN 1;\", "
                  "\"case.txt\");",
         .insteadResult = "ЛОЖЬ"},
        {.name = "NETWORKREQUESTEXECSYNC", .text = "NETWORKREQUESTEXECSYNC(\"a\", \"b\")"},
        {.name = "PATHEXIST", .text = "PATHEXIST(\"case.txt\")", .setup = file},
        {.name = "SECONDS20000101", .text = "SECONDS20000101()", .varies = true},
        {.name = "SECONDSTHISPROCESS", .text = "SECONDSTHISPROCESS()", .varies = true},
        {.name = "STRINGAPPENDTOFILE",
         .text = "STRINGAPPENDTOFILE(" + quoted + ", \"case.txt\", \"CP1251\")",
         .setup = file},
        {.name = "STRINGFROMFILE", .text = "STRINGFROMFILE(\"case.txt\")", .setup = file},
        {.name = "USERDIR", .text = "USERDIR()"},
        {.name = "CLASSDISPLAY", .text = "CLASSDISPLAY(\" VALUETABLE\")"},
        {.name = "CLASSESDISPLAY", .text = "CLASSESDISPLAY(\"VALUE*\")"},
        {.name = "CLASSLOAD", .text = "CLASSLOAD(\"TEST\")"},
        {.name = "CLASSLOADED", .text = "CLASSLOADED(\"VALUELIST\")"},
        {.name = "COLOR", .text = "COLOR(\"red\")"},
        {.name = "CONTEXTGET", .text = "ISEMPTYVALUE(CONTEXTGET())"},
        {.name = "CREATEOBJECT",
         .text = "x.VALUEADD(CREATEOBJECT(\"VALUETABLE\"))",
         .setup = "x = CREATEOBJECT(\"VALUELIST\");"},
        {.name = "FORMEDIT", .text = "FORMEDIT(\"a\")"},
        {.name = "FORMOPEN", .text = "FORMOPEN(\"a\")"},
        {.name = "FUNCTIONSDISPLAY", .text = "FUNCTIONSDISPLAY(\"STRING*\")", .varies = true},
        {.name = "MEMORYDISPLAY", .text = "MEMORYDISPLAY()"},
        {.name = "MEMORYDISPLAYDATA",
         .text = "MEMORYDISPLAYDATA(2)",
         .setup = list,
         .varies = true},
        {.name = "MEMORYDISPLAYVARS",
         .text = "MEMORYDISPLAYVARS(\"*\", 2)",
         .setup = list,
         .varies = true},
        {.name = "PIXMAPASBASE64FROMFILEGET", .text = "PIXMAPASBASE64FROMFILEGET(\"a\")"},
        {.name = "PIXMAPASBASE64PARTGET", .text = "PIXMAPASBASE64PARTGET(\"a\", 1, 2)"},
        {.name = "PIXMAPASBASE64SHOW", .text = "PIXMAPASBASE64SHOW(\"a\")"},
        {.name = "___TEST", .text = "___TEST()"},
        {.name = "___TEST__TEXTBROWSER", .text = "___TEST__TEXTBROWSER(l)", .setup = list},
        {.name = "___TEST00001", .text = "___TEST00001(\"123.5\")", .varies = true},
        {.name = "TOSTRING", .text = "TOSTRING()", .varies = true},
        {.name = "V1ALUETOSTRING", .text = "V1ALUETOSTRING()", .varies = true},
    };
}
