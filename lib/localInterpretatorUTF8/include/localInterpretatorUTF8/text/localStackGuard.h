// Keeps deep nesting and recursion of a program from running off the end of the stack.
//
// Every function that recurses with the depth of a program's text or calls asks here first; near the end
// it refuses with status 16 and one trace line, and the program fails like any other.
#pragma once

#include <source_location>
#include <string_view>

namespace localStackGuard {

// True while the calling thread's stack has room for more than what output and the toolkit need.
bool hasRoom();

// False near the end of the stack, with status 16 set and a trace line written.
bool enter(int& status, std::string_view function,
           std::source_location place = std::source_location::current());

}  // namespace localStackGuard
