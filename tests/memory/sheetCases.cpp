#include "memory/memoryCase.h"

std::vector<memoryCase> sheetCases() {
    using enum memoryCase::Kind;
    const std::string sheet =
        "s = CREATEOBJECT(\"TABLEDOCUMENT\"); FOR i=1 TO 5 DO "
        "s.CELLTEXTSET(i, 1, \"a text of a cell \"+STRING(i)); ENDDO; "
        "s.CELLFONTSET(2, 1, \"a family with a long name\", 12, 3); s.CELLCOLORSET(3, 1, 5); "
        "s.COLUMNWIDTHSET(1, 40); ";
    const std::string json =
        sheet +
        "f = '{\"cells\":[{\"rowNumber\":1,\"colNumber\":1,\"text\":\"a text that was read\"},"
        "{\"rowNumber\":2,\"colNumber\":1,\"colorFon\":1,\"fontSize\":9,"
        "\"fontFamily\":\"a family that was read\"}]}'; ";
    const std::string file = "FILEDELETE(\"case.txt\"); ";
    const auto call = [&sheet](std::string name, const std::string& arguments) {
        return memoryCase{.name = "TABLEDOCUMENT." + name,
                          .text = "s." + name + "(" + arguments + ")",
                          .setup = sheet};
    };
    return {
        {.name = "TABLEDOCUMENT.new",
         .text = "x = CREATEOBJECT(\"TABLEDOCUMENT\");",
         .setup = "x = 1;",
         .kind = program,
         .varies = true},
        {.name = "TABLEDOCUMENT.end", .text = "s = 1;", .setup = sheet, .kind = program},
        {.name = "TABLEDOCUMENT.TOSTRING", .text = "s.TOSTRING()", .setup = sheet, .varies = true},
        call("CELLALIGMENTSET", "7, 1, 2"),
        {.name = "alignment of a cell that is there",
         .text = "s.CELLALIGMENTSET(1, 1, 2, 32)",
         .setup = sheet},
        call("CELLCOLORSET", "7, 1, \"red\", 5"),
        call("CELLFONTSET", "7, 1, \"another family with a long name\", 10, 1"),
        // Without a picture, for the toolkit's own readers of pictures cannot do without memory.
        call("CELLPIXMAPASBASE64SET", "7, 1, \"\""),
        call("CELLTEXTGET", "2, 1"),
        call("CELLTEXTSET", "7, 1, \"a text that is a new one\""),
        call("CLEAR", ""),
        call("COLUMNWIDTHGET", "1"),
        call("COLUMNWIDTHSET", "2, 30"),
        {.name = "TABLEDOCUMENT.FROMJSON", .text = "s.FROMJSON(f)", .setup = json},
        {.name = "TABLEDOCUMENT.LOAD",
         .text = "s.LOAD(\"case.txt\")",
         .setup = json + file + "STRINGAPPENDTOFILE(f, \"case.txt\"); "},
        call("ROWHEIGHTGET", "1"),
        call("ROWHEIGHTSET", "1, 30"),
        {.name = "TABLEDOCUMENT.SAVE",
         .text = "s.SAVE(\"case.txt\")",
         .setup = sheet + file + "STRINGAPPENDTOFILE(\"the old file\", \"case.txt\"); "},
        call("SHOW", "\"a title\""),
        call("TOJSON", ""),
        {.name = "TABLEDOCUMENT.TOVALUELIST", .text = "s.TOVALUELIST()", .setup = sheet},
    };
}
