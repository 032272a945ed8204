// An allocator that fails when it is told to: what the language asks for, by operator new or by
// malloc, comes through here in the test of memory that runs out.
//
// Requests are counted from begin() to end() and only then do they fail. What the C library, the
// toolkit and the threads of others ask for by themselves is theirs.
#pragma once

#include <cstddef>

namespace failingMemory {

enum class Mode {
    once,         // one request fails
    fromThereOn,  // and so do all behind it
};

// The request of that number, from 1, is the first to fail.
void begin(std::size_t number, Mode mode);
// Requests are granted again. Gives how many were refused.
std::size_t end();

}  // namespace failingMemory
