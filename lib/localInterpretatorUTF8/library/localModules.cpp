#include "library/localModules.h"

#include <algorithm>
#include <string>
#include <vector>

#include "context/localStartClasses.h"
#include "library/localFillable.h"
#include "localInterpretatorUTF8/file/localStd.h"
#include "localInterpretatorUTF8/library/localModule.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/text/localString.h"
#include "localInterpretatorUTF8/text/localTrace.h"

namespace {

struct Module {
    const localModuleOffer* offer;
    bool loaded = false;
};

std::vector<Module>& modules() {
    static std::vector<Module> all;
    return all;
}

bool holds(std::span<const std::u16string_view> names, std::u16string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

// Gives whether the module has just come.
bool load(Module& module) {
    if (module.loaded) {
        return false;
    }
    std::string fault;
    const auto entry = reinterpret_cast<decltype(&localModule)>(localPlatform::loadLibraryFunction(
        localStd::pathJoin(localStd::binaryPath(), module.offer->file), "localModule", fault));
    if (!fault.empty()) {
        traceLine(u"Module [" + std::u16string(module.offer->file) + u"] cannot be loaded: " +
                      localString::fromUtf8(fault),
                  "localModules");
    }
    const localExtension* const extension = entry == nullptr ? nullptr : entry();
    if (extension == nullptr) {
        return false;
    }
    localExtensionAdd(*extension);
    module.loaded = true;
    return true;
}

// Stands in the row of a function until its module comes.
bool functionOfModule(localCall& call) {
    const localMethodRows::Entry& entry = *localLibrary::functionRows().find(call.name);
    for (Module& module : modules()) {
        if (holds(module.offer->functions, entry.row->english) && load(module)) {
            break;
        }
    }
    return entry.handler == functionOfModule ? localBroughtFromAbove(call) : entry.handler(call);
}

}  // namespace

bool localModules::bringClass(std::u16string_view nameEng) {
    for (Module& module : modules()) {
        const bool offered =
            holds(module.offer->classes, nameEng) || holds(module.offer->startClasses, nameEng);
        if (offered && load(module)) {
            return true;
        }
    }
    return false;
}

void localModuleAdd(const localModuleOffer& offer) {
    using namespace localLibrary;
    for (const std::u16string_view english : offer.functions) {
        declarationRequired(functionRows().fill(english, functionOfModule), offer.file, u"function",
                            english);
    }
    for (const std::u16string_view nameEng : offer.classes) {
        declarationRequired(classNames(nameEng) != nullptr, offer.file, u"class", nameEng);
    }
    for (const std::u16string_view nameEng : offer.startClasses) {
        const ClassNames* const names = classNames(nameEng);
        declarationRequired(names != nullptr, offer.file, u"class", nameEng);
        localStartClasses::addLate({names->nameEng, names->nameRus, localModules::bringClass});
    }
    modules().push_back({&offer});
}
