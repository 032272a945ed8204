// Keeps deep nesting and recursion of a program from running off the end of the stack.
//
// Every function that recurses with the depth of a program's text or calls asks here first; near the end
// it refuses with status 16 and one trace line, and the program fails like any other.
#pragma once

#include <source_location>
#include <string_view>

namespace localStackGuard {

// The lowest address that a thread's stack may reach before the language refuses, null until first asked.
inline thread_local const char* lowestAllowed = nullptr;
const char* lowestAllowedFind();

// An address in the calling function's frame.
#if defined(__GNUC__)
#define LOCAL_FRAME_ADDRESS static_cast<const char*>(__builtin_frame_address(0))
#else
#define LOCAL_FRAME_ADDRESS static_cast<const char*>(_AddressOfReturnAddress())
#endif

// True while the calling thread's stack has room for more than what output and the toolkit need.
inline bool hasRoom() {
    const char* lowest = lowestAllowed;
    if (lowest == nullptr) {
        lowest = lowestAllowedFind();
    }
    return LOCAL_FRAME_ADDRESS > lowest;
}

// Sets status 16 and writes the trace line of a refusal; false.
bool refuse(int& status, std::string_view function, std::source_location place);

// False near the end of the stack, with status 16 set and a trace line written.
inline bool enter(int& status, std::string_view function,
                  std::source_location place = std::source_location::current()) {
    return hasRoom() || refuse(status, function, place);
}

}  // namespace localStackGuard
