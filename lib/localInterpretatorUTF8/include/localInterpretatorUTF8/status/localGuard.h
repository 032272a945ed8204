// Where exceptions of the standard library stop.
//
// The language tells of faults by a status and throws nothing itself. What the standard library
// throws, mostly for memory that runs out, unwinds to the nearest door: the call of a method or of
// a global function, or where the language is entered. There the operation ends in status 16 and
// one trace line. It has not happened then: whoever changes something asks for all the memory that
// the change needs first. Destructors throw nothing and ask for no memory.
#pragma once

#include <exception>
#include <source_location>
#include <string_view>

#include "localInterpretatorUTF8/status/localStatus.h"

// Sets status 16 and writes the trace line, if that can be; false.
bool localGuardCaught(int& status, const std::exception& fault, std::string_view function,
                      std::source_location place) noexcept;
bool localGuardCaught(int& status, const std::exception& fault, std::u16string_view function,
                      std::source_location place) noexcept;

// Gives what `work` gives, false when an exception ended it. `function` names it in the trace line,
// in the language's way (UTF-16) or this source's.
template <class Name, class Work>
bool localGuarded(int& status, Name function, Work work,
                  std::source_location place = std::source_location::current()) {
    try {
        return work();
    } catch (const std::exception& fault) {
        return localGuardCaught(status, fault, function, place);
    }
}
