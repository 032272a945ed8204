#include "localInterpretatorUTF8/text/localStackGuard.h"

#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/text/localTrace.h"

namespace localStackGuard {
namespace {

// What a line of output may need below the deepest point: the window program paints while it is written.
constexpr std::size_t reserve = std::size_t{1} << 20;

const char* lowestAllowed() {
    thread_local const char* const lowest = localPlatform::stackLimit() + reserve;
    return lowest;
}

}  // namespace

bool hasRoom() {
#if defined(__GNUC__)
    const auto* here = static_cast<const char*>(__builtin_frame_address(0));
#else
    const char* const here = static_cast<const char*>(_AddressOfReturnAddress());
#endif
    return here > lowestAllowed();
}

bool enter(int& status, std::string_view function, std::source_location place) {
    if (hasRoom()) {
        return true;
    }
    status = localErrorTypeCODE;
    traceLine(u"Слишком глубокая вложенность или рекурсия!", function, place);
    return false;
}

}  // namespace localStackGuard
