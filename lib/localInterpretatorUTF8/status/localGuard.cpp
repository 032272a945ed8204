#include "localInterpretatorUTF8/status/localGuard.h"

#include <new>
#include <stdexcept>

#include "localInterpretatorUTF8/text/localString.h"
#include "localInterpretatorUTF8/text/localTrace.h"

namespace {

bool isMemory(const std::exception& fault) {
    return dynamic_cast<const std::bad_alloc*>(&fault) != nullptr ||
           dynamic_cast<const std::length_error*>(&fault) != nullptr;
}

template <class Name>
bool caught(int& status, const std::exception& fault, Name function,
            std::source_location place) noexcept {
    status = localErrorTypeCODE;
    try {
        if (isMemory(fault)) {
            traceLine(u"Недостаточно памяти!", function, place);
        } else {
            traceLine(localString::fromUtf8(fault.what()), function, place);
        }
    } catch (const std::exception&) {
        // The window that shows the lines may find no memory either; the status tells all the same.
    }
    return false;
}

}  // namespace

bool localGuardCaught(int& status, const std::exception& fault, std::string_view function,
                      std::source_location place) noexcept {
    return caught(status, fault, function, place);
}

bool localGuardCaught(int& status, const std::exception& fault, std::u16string_view function,
                      std::source_location place) noexcept {
    return caught(status, fault, function, place);
}
