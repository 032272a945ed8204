#include "memory/memoryCase.h"

namespace {

// Items enough for a table of presentations, which has been made by lookups.
const std::string list =
    "l = CREATEOBJECT(\"VALUELIST\"); FOR i=1 TO 20 DO l.VALUEADD(\"value \"+STRING(i), "
    "\"presentation \"+STRING(i)); ENDDO; "
    "FOR i=1 TO 20 DO l.VALUEGETBYPRESENTATION(\"presentation 20\"); ENDDO; "
    "o = CREATEOBJECT(\"VALUELIST\"); o.VALUEADD(1); l.VALUESET(3, o); ";
// Of 32 entries the table of presentations has no room for one more.
const std::string fullList =
    list + "FOR i=21 TO 32 DO l.VALUEADD(i, \"presentation \"+STRING(i)); ENDDO; ";
// As many columns as are searched without a table of names.
const std::string table =
    "t = CREATEOBJECT(\"VALUETABLE\"); FOR i=1 TO 7 DO t.COLUMNADD(\"column \"+STRING(i)); ENDDO; "
    "t.COLUMNADD(\"name\"); FOR i=1 TO 4 DO t.ROWADD(); t.VALUESET(i, 1, 10-i); "
    "t.VALUESET(i, 2, \"a text \"+STRING(i)); ENDDO; "
    "t.VALUESET(1, \"name\", CREATEOBJECT(\"VALUELIST\")); t.ROWACTUALSET(1); ";
const std::string test = "CLASSLOAD(\"TEST\"); o = CREATEOBJECT(\"TEST\"); ";

}  // namespace

std::vector<memoryCase> memberCases() {
    using enum memoryCase::Kind;
    return {
        {.name = "VALUELIST.new",
         .text = "x = CREATEOBJECT(\"VALUELIST\");",
         .setup = "x = 1;",
         .kind = program},
        {.name = "VALUELIST.end", .text = "l = 1;", .setup = list, .kind = program},
        {.name = "VALUELIST.TOSTRING", .text = "l.TOSTRING()", .setup = list, .varies = true},
        {.name = "VALUELIST.CLEAR", .text = "l.CLEAR()", .setup = list},
        {.name = "VALUELIST.SHOW", .text = "l.SHOW(\"a title\")", .setup = list, .varies = true},
        {.name = "VALUELIST.ROWCHOOSE", .text = "l.ROWCHOOSE(\"a title\", 2)", .setup = list},
        {.name = "VALUELIST.SIZE", .text = "l.SIZE()", .setup = list},
        {.name = "VALUELIST.TOJSON",
         .text = "STRINGLEN(l.TOJSON())",
         .setup = list,
         .varies = true},
        {.name = "VALUELIST.VALUEADD",
         .text = "l.VALUEADD(o, \"presentation of another\")",
         .setup = fullList},
        {.name = "VALUELIST.VALUEGET", .text = "l.VALUEGET(2)", .setup = list},
        {.name = "VALUELIST.VALUEGETBYPRESENTATION",
         .text = "l.VALUEGETBYPRESENTATION(\"presentation 2\")",
         .setup = list},
        {.name = "VALUELIST.VALUEINSERT",
         .text = "l.VALUEINSERT(2, o, \"inserted\")",
         .setup = fullList},
        {.name = "VALUELIST.VALUEPRESENTATIONGET",
         .text = "l.VALUEPRESENTATIONGET(2)",
         .setup = list},
        {.name = "VALUELIST.VALUEREMOVE", .text = "l.VALUEREMOVE(3)", .setup = list},
        {.name = "VALUELIST.VALUESET", .text = "l.VALUESET(2, o)", .setup = list},
        {.name = "VALUELIST.VALUESETBYPRESENTATION",
         .text = "l.VALUESETBYPRESENTATION(\"new value\", \"new presentation\")",
         .setup = fullList},
        {.name = "VALUELIST.VALUESETPRESENTATION",
         .text = "l.VALUESETPRESENTATION(2, \"presentation of another\")",
         .setup = fullList},
        {.name = "VALUETABLE.new",
         .text = "x = CREATEOBJECT(\"VALUETABLE\");",
         .setup = "x = 1;",
         .kind = program},
        {.name = "VALUETABLE.end", .text = "t = 1;", .setup = table, .kind = program},
        {.name = "VALUETABLE.TOSTRING", .text = "t.TOSTRING()", .setup = table, .varies = true},
        {.name = "VALUETABLE.CLEAR", .text = "t.CLEAR()", .setup = table},
        {.name = "VALUETABLE.COLUMNADD",
         .text = "t.COLUMNADD(\"a column of a long name that is "
                 "longer than what a name holds without the heap\")",
         .setup = table},
        {.name = "VALUETABLE.COLUMNNAMEGET", .text = "t.COLUMNNAMEGET(2)", .setup = table},
        {.name = "VALUETABLE.COLUMNNUMBERGET",
         .text = "t.COLUMNNUMBERGET(\"column 2\")",
         .setup = table},
        {.name = "VALUETABLE.COLUMNPARAMETERSGET",
         .text = "t.COLUMNPARAMETERSGET(2)",
         .setup = table},
        {.name = "VALUETABLE.COLUMNSCOUNT", .text = "t.COLUMNSCOUNT()", .setup = table},
        {.name = "VALUETABLE.ROWADD", .text = "t.ROWADD(2)", .setup = table},
        {.name = "VALUETABLE.ROWACTUALGET", .text = "t.ROWACTUALGET()", .setup = table},
        {.name = "VALUETABLE.ROWACTUALSET", .text = "t.ROWACTUALSET(2)", .setup = table},
        {.name = "VALUETABLE.ROWCHOOSE", .text = "t.ROWCHOOSE(\"\", \"a title\")", .setup = table},
        {.name = "VALUETABLE.ROWSCOUNT", .text = "t.ROWSCOUNT()", .setup = table},
        {.name = "VALUETABLE.SHOW", .text = "t.SHOW()", .setup = table},
        {.name = "VALUETABLE.SORT", .text = "t.SORT(\"-column 2\")", .setup = table},
        {.name = "VALUETABLE.VALUEGET", .text = "t.VALUEGET(1, \"column 2\")", .setup = table},
        {.name = "VALUETABLE.VALUESET",
         .text = "t.VALUESET(2, 2, \"another text\")",
         .setup = table},
        {.name = "VALUETABLE.FILLFROMJSON",
         .text = "t.FILLFROMJSON('{\"first key\":\"a first value\",\"second\":{\"inner\":\"value\","
                 "\"more\":{}},\"third key\":\"a last value\"}')",
         .setup = table},
        {.name = "VALUETABLE column", .text = "t.NAME", .setup = table},
        {.name = "VALUETABLE sorted by numbers", .text = "t.SORT(\"column 1\")", .setup = table},
        {.name = "TEST.new",
         .text = "x = CREATEOBJECT(\"TEST\");",
         .setup = "x = 1;" + test,
         .kind = program},
        {.name = "TEST.end", .text = "o = 1;", .setup = test, .kind = program},
        {.name = "TEST.TOSTRING", .text = "o.TOSTRING()", .setup = test},
        {.name = "TEST.GETINT", .text = "o.GETINT()", .setup = test},
        {.name = "TEST.GETINTPLUSONE", .text = "o.GETINTPLUSONE()", .setup = test},
        {.name = "TEST.GETINTPLUS", .text = "o.GETINTPLUS(2)", .setup = test},
        {.name = "TEST.SELF", .text = "o.SELF", .setup = test},
        {.name = "TEST.ATTRIBINT", .text = "o.ATTRIBINT", .setup = test},
        // An object stands in the variable `date`: programs have no way to make one.
        {.name = "DATE.new", .text = "x = date;", .setup = "x = 1;", .kind = program},
        {.name = "DATE.end", .text = "date = 1;", .kind = program},
        {.name = "DATE.TOSTRING", .text = "date.TOSTRING()"},
        {.name = "CONTEXT variable", .text = "c.x", .setup = "x = \"a\"; c = CONTEXTGET();"},
        {.name = "CONTEXT function", .text = "c.STRING(1/3)", .setup = "c = CONTEXTGET();"},
        {.name = "CONTEXT without a name", .text = "c.c.c.x(1)", .setup = "c = CONTEXTGET();"},
    };
}
