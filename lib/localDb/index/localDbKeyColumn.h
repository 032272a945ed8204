// A column of an index, as it stands in statements.
#pragma once

#include <string>

struct localDbKeyColumn {
    std::u16string name;  // qualified
    // The name alone.
    std::u16string column = {};
    // Whether values are written bare in the form by field.
    bool numeric = false;
    bool descending = false;
    bool nullable = false;
    // What the declared type makes of values; without one a number and its text are different.
    enum class Affinity { none, text, number };
    Affinity affinity = Affinity::text;
    // How the index compares texts: BINARY, NOCASE, RTRIM.
    std::u16string collation = {};
    // Whether that must be said, since the column by itself compares otherwise.
    bool collationSaid = false;

    // The column as a term or an order names it.
    std::u16string term() const { return collationSaid ? name + u" collate " + collation : name; }
};
