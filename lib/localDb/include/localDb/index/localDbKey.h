// A position in an index: the values of its key columns, or of the first few.
#pragma once

#include <string>
#include <string_view>
#include <vector>

struct localDbKeyValue {
    // How the file holds the value. One that did not come from a row is `given`: typed by a person
    // or written in a program.
    enum class Kind { given, null, number, text, bytes };

    localDbKeyValue(std::u16string given) : text(std::move(given)) {}
    localDbKeyValue(std::u16string_view given) : text(given) {}
    localDbKeyValue(const char16_t* given) : text(given) {}
    localDbKeyValue(std::u16string shown, Kind held) : text(std::move(shown)), kind(held) {}

    bool operator==(const localDbKeyValue&) const = default;

    std::u16string text;  // bytes: their hexadecimal digits
    Kind kind = Kind::given;
};

// May hold more values than the index has key columns: what tells the row from others with the same
// key stands behind them. Whoever passes a key on need not care.
using localDbKey = std::vector<localDbKeyValue>;
