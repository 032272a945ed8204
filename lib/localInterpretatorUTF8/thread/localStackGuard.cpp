#include "localInterpretatorUTF8/thread/localStackGuard.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/text/localTrace.h"

namespace localStackGuard {
namespace {

// What a line of output may need below the deepest point: the window program paints while it is
// written.
constexpr std::size_t reserve = std::size_t{1} << 20;

// However large a stack the system gives: beyond this a recursion would use up the slots first.
constexpr std::ptrdiff_t deepest = std::ptrdiff_t{1} << 26;

// Above every frame.
const char* const noRoom = reinterpret_cast<const char*>(UINTPTR_MAX);

}  // namespace

const char* lowestAllowedFind() {
    const char* const limit =
        std::max(localPlatform::stackLimit() + reserve, LOCAL_FRAME_ADDRESS - deepest);
    const char* lowest = nullptr;
    // Another thread may have ended the programs of this one already.
    if (lowestAllowed.compare_exchange_strong(lowest, limit)) {
        lowest = lowestAllowed;
    }
    return lowest;
}

void endPrograms(Limit& limit) {
    limit = noRoom;
}

bool refuse(int& status, std::string_view function, std::source_location place) {
    status = localErrorTypeCODE;
    if (lowestAllowed == noRoom) {
        return false;
    }
    traceLine(u"Слишком глубокая вложенность или рекурсия!", function, place);
    return false;
}

}  // namespace localStackGuard
