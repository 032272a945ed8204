// A moment of local time and its text.
#pragma once

#include <cstdint>
#include <string>

#include "localInterpretatorUTF8/value/localClassDeclaration.h"

class localDateTime {
public:
    // The clock's time now.
    localDateTime();
    explicit localDateTime(std::int64_t secondsSinceEpoch) : now(secondsSinceEpoch) {}
    virtual ~localDateTime() = default;

    // "20261115:10:34:56".
    std::string toStringAscii() const;

    // The class DATE. It is in no registry and CLASSLOAD does not know it; the entry waits for a
    // later version.
    static localClassDeclaration* classDeclaration();

    std::int64_t now;  // seconds since 1970
    std::uint32_t linkCounter = 0;
};
