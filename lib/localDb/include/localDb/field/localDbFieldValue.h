// A cell of a record that is written: the older form, which keeps every letter of its value.
#pragma once

#include <QString>

#include <cstdint>
#include <string>

struct localDbFieldValue {
    std::u16string name = {};
    std::u16string type = {};
    std::int32_t len = 0;
    std::int32_t dec = 0;
    QString value = {};

    // Quoted text for "CHAR"; for any other type the text stands bare, its quotes doubled too.
    QString sqlValue() const;
};
