#include "localInterpretatorUTF8/text/localStackGuard.h"

#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/text/localTrace.h"

namespace localStackGuard {
namespace {

// What a line of output may need below the deepest point: the window program paints while it is written.
constexpr std::size_t reserve = std::size_t{1} << 20;

}  // namespace

const char* lowestAllowedFind() {
    lowestAllowed = localPlatform::stackLimit() + reserve;
    return lowestAllowed;
}

bool refuse(int& status, std::string_view function, std::source_location place) {
    status = localErrorTypeCODE;
    traceLine(u"Слишком глубокая вложенность или рекурсия!", function, place);
    return false;
}

}  // namespace localStackGuard
