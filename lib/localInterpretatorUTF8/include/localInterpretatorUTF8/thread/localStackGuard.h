// Keeps deep nesting and recursion of a program from running off the end of the stack.
//
// Every function that recurses with the depth of a program's text or calls asks here first; near
// the end it refuses with status 16 and one trace line, and the program fails like any other.
//
// Since every block and every expression asks, this is also where another thread can end a program
// that would not end by itself: it leaves the thread of that program no room at all.
#pragma once

#include <atomic>
#include <source_location>
#include <string_view>

namespace localStackGuard {

// The lowest address that a thread's stack may reach before the language refuses, null until first
// asked. Atomic for the sake of endPrograms(); a relaxed read costs nothing.
using Limit = std::atomic<const char*>;
constinit inline thread_local Limit lowestAllowed = nullptr;
const char* lowestAllowedFind();

// The limit of the calling thread, good as long as the thread lives.
inline Limit& ownLimit() {
    return lowestAllowed;
}
// Called from any thread: on the thread of that limit nothing enters from now on, with status 16
// and no line, so whatever program runs there fails.
void endPrograms(Limit& limit);

// An address in the calling function's frame.
#if defined(__GNUC__)
#define LOCAL_FRAME_ADDRESS static_cast<const char*>(__builtin_frame_address(0))
#else
#define LOCAL_FRAME_ADDRESS static_cast<const char*>(_AddressOfReturnAddress())
#endif

// True while the calling thread's stack has room for more than what output and the toolkit need.
inline bool hasRoom() {
    const char* lowest = lowestAllowed.load(std::memory_order_relaxed);
    if (lowest == nullptr) {
        lowest = lowestAllowedFind();
    }
    return LOCAL_FRAME_ADDRESS > lowest;
}

// Sets status 16 and writes the trace line of a refusal, unless the programs were ended; false.
bool refuse(int& status, std::string_view function, std::source_location place);

// False near the end of the stack, with status 16 set and a trace line written.
inline bool enter(int& status, std::string_view function,
                  std::source_location place = std::source_location::current()) {
    return hasRoom() || refuse(status, function, place);
}

}  // namespace localStackGuard
