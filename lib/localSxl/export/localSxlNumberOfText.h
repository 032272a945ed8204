// Texts that are numbers, as STRING and FORMAT write them.
#pragma once

#include <optional>
#include <string_view>

struct localSxlTextNumber {
    double value = 0.0;
    int decimals = 0;        // behind the decimal mark
    bool isGrouped = false;  // by threes
};

// Nothing for a text that is none, or that would lose by being one: with leading zeros, with more
// than 15 digits before the mark, or such as 1,234, which may mean two numbers.
std::optional<localSxlTextNumber> localSxlNumberOfText(std::u16string_view text);
