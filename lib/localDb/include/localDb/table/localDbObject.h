// What a data file declares: a table, an index, a view or a trigger.
#pragma once

#include <string>

struct localDbObject {
    // Whether the key of an index may occur more than once.
    enum class Keys { any, unique };

    std::u16string type = {};   // "table", "index", "view", "trigger"
    std::u16string name = {};   // as the file has it
    std::u16string table = {};  // the one it belongs to, itself for a table
    // The statement that made it; empty for an index that belongs to its table's declaration.
    std::u16string sql = {};
};
