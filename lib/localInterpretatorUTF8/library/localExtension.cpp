#include "localInterpretatorUTF8/library/localExtension.h"

#include <string>

#include "context/localStartClasses.h"
#include "library/localFillable.h"
#include "localInterpretatorUTF8/host/localHalt.h"
#include "localInterpretatorUTF8/text/localString.h"

namespace {

bool methodFill(const localExtensionMethod& method) {
    const localClassDeclaration* const declaration = localLibrary::classDeclared(method.className);
    return declaration != nullptr && declaration->methodRows != nullptr &&
           declaration->methodRows->fill(method.english, method.handler);
}

}  // namespace

void localLibrary::haltUndeclared(std::u16string_view bringer, std::u16string_view kind,
                                  std::u16string_view name) {
    exit_FAILURE(u"[" + std::u16string(bringer) + u"] brings what nobody declared: " +
                 std::u16string(kind) + u" [" + std::u16string(name) + u"]!");
}

void localExtensionAdd(const localExtension& extension) {
    using namespace localLibrary;
    const std::u16string_view bringer = extension.name;
    for (const auto& [english, handler] : extension.functions) {
        declarationRequired(functionRows().fill(english, handler), bringer, u"function", english);
    }
    for (const auto& [nameEng, declare] : extension.classes) {
        declarationRequired(classFill(nameEng, declare), bringer, u"class", nameEng);
    }
    for (const auto& [nameEng, declare] : extension.startClasses) {
        declarationRequired(classFill(nameEng, declare), bringer, u"class", nameEng);
        localStartClasses::add(declare);
    }
    for (const localExtensionMethod& method : extension.methods) {
        declarationRequired(methodFill(method), bringer, u"method",
                            std::u16string(method.className) + u"." +
                                std::u16string(method.english));
    }
    for (const localCounter& counter : extension.counters) {
        declarationRequired(counterFill(counter), bringer, u"counter",
                            localString::fromUtf8(counter.name));
    }
}
