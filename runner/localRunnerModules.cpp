#include "localRunnerModules.h"

namespace {

constexpr std::u16string_view pictureFunctions[] = {
    u"PIXMAPASBASE64FROMFILEGET",
    u"PIXMAPASBASE64PARTGET",
};

// A file has its name from the module's source in modules/.
constexpr localModuleOffer modules[] = {
    {.file = u"localPictureModule", .functions = pictureFunctions},
};

}  // namespace

std::span<const localModuleOffer> localRunnerModules() {
    return modules;
}
