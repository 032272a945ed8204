#include "memory/memoryCase.h"

namespace {

const std::string base = "CLASSLOAD(\"DATABASE\"); b = CREATEOBJECT(\"DATABASE\"); b.CONNECT(); ";
const std::string result = base + "t = CREATEOBJECT(\"VALUETABLE\"); ";
const std::string list = base + "l = CREATEOBJECT(\"VALUELIST\"); ";
const std::string table = base + "t = b.TABLEGET(\"Goods\"); ";
const std::string record = base + "r = b.RECORDGET(\"Goods\"); ";

}  // namespace

std::vector<memoryCase> databaseCases() {
    using enum memoryCase::Kind;
    return {
        {.name = "DATABASE.new",
         .text = "x = CREATEOBJECT(\"DATABASE\");",
         .setup = base + "x = 1;",
         .kind = program},
        {.name = "DATABASE.end", .text = "b = 1;", .setup = base, .kind = program},
        {.name = "DATABASE.TOSTRING", .text = "b.TOSTRING()", .setup = base, .varies = true},
        {.name = "DATABASE.__TEST", .text = "b.__TEST(0)", .setup = base},
        {.name = "DATABASE.__TESTDBOPEN", .text = "b.__TESTDBOPEN(\"data.sqlite\")", .setup = base},
        {.name = "DATABASE.__TEST__BROWSE", .text = "b.__TEST__BROWSE(l)", .setup = list},
        {.name = "DATABASE.CLEAR", .text = "b.CLEAR()", .setup = base},
        // Binds a table after the other.
        {.name = "DATABASE.CONNECT",
         .text = "b.CONNECT()",
         .setup = base,
         .varies = true,
         .severalChanges = true},
        {.name = "DATABASE.CONNECTED", .text = "b.CONNECTED()", .setup = base},
        {.name = "DATABASE.DISPLAY", .text = "b.DISPLAY()", .setup = base, .varies = true},
        {.name = "DATABASE.QUERYTOVALUETABLE",
         .text = "b.QUERYTOVALUETABLE(\"select * from Goods\", t)",
         .setup = result,
         .severalChanges = true},
        {.name = "DATABASE.QUERYTOVALUETABLE of a bad query",
         .text = "b.QUERYTOVALUETABLE(\"select * from Nothing\", t)",
         .setup = result,
         .severalChanges = true},
        {.name = "DATABASE.RECORDGET",
         .text = "VALUETYPEASSTRING(b.RECORDGET(\"Goods\"))",
         .setup = base,
         .varies = true},
        {.name = "DATABASE.TABLEFIELDS",
         .text = "b.TABLEFIELDS(\"Goods\", t)",
         .setup = result,
         .severalChanges = true},
        {.name = "DATABASE.TABLEFIELDS as a list",
         .text = "b.TABLEFIELDS(\"Goods\", l)",
         .setup = list,
         .severalChanges = true},
        {.name = "DATABASE.TABLEGET",
         .text = "VALUETYPEASSTRING(b.TABLEGET(\"Goods\"))",
         .setup = base},
        {.name = "DATABASE.TABLES", .text = "b.TABLES()", .setup = base},
        {.name = "DATABASE.TREESHOW", .text = "b.TREESHOW()", .setup = base},
        {.name = "DATABASE a table by its name",
         .text = "VALUETYPEASSTRING(b.Goods)",
         .setup = base},
        {.name = "DATABASETABLE.new", .text = "CREATEOBJECT(\"DATABASETABLE\")", .setup = base},
        {.name = "DATABASETABLE.end", .text = "t = 1;", .setup = table, .kind = program},
        {.name = "DATABASETABLE.TOSTRING", .text = "t.TOSTRING()", .setup = table, .varies = true},
        {.name = "DATABASETABLE.__TEST", .text = "t.__TEST(0)", .setup = table},
        {.name = "DATABASETABLE.FIELDS", .text = "t.FIELDS()", .setup = table},
        {.name = "DATABASERECORD.new", .text = "CREATEOBJECT(\"DATABASERECORD\")", .setup = base},
        {.name = "DATABASERECORD.end", .text = "r = 1;", .setup = record, .kind = program},
        {.name = "DATABASERECORD.TOSTRING",
         .text = "r.TOSTRING()",
         .setup = record,
         .varies = true},
        {.name = "DATABASERECORD.__TEST", .text = "r.__TEST(0)", .setup = record},
        {.name = "DATABASERECORD.DISPLAY", .text = "r.DISPLAY()", .setup = record, .varies = true},
        {.name = "DATABASERECORD.FIELDS", .text = "r.FIELDS()", .setup = record},
        {.name = "DATABASERECORD.SELECT", .text = "r.SELECT(\"id>1\")", .setup = record},
        {.name = "DATABASERECORD.NEXT",
         .text = "r.NEXT()",
         .setup = record + "r.SELECT(); ",
         .severalChanges = true},
        {.name = "DATABASERECORD a field by its name",
         .text = "r.descr",
         .setup = record + "r.SELECT(); r.NEXT(); "},
    };
}
