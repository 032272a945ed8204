#include "localRunnerModules.h"

namespace {

constexpr std::u16string_view pictureFunctions[] = {
    u"PIXMAPASBASE64FROMFILEGET",
    u"PIXMAPASBASE64PARTGET",
};

constexpr std::u16string_view dataClasses[] = {u"DATABASE"};
constexpr std::u16string_view sheetClasses[] = {u"TABLEDOCUMENT"};

// A file has its name from the module's source in modules/.
constexpr localModuleOffer modules[] = {
    {.file = u"localPictureModule", .functions = pictureFunctions},
    {.file = u"localDataModule", .classes = dataClasses},
    {.file = u"localSheetModule", .startClasses = sheetClasses},
};

}  // namespace

std::span<const localModuleOffer> localRunnerModules() {
    return modules;
}
