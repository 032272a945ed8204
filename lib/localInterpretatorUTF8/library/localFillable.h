// What libraries above the language fill; localExtensionAdd and localModuleAdd are their way in.
#pragma once

#include <span>
#include <string_view>

#include "localInterpretatorUTF8/value/localCounters.h"
#include "localInterpretatorUTF8/value/localMethodTable.h"

namespace localLibrary {

// Halts: `bringer` names what nobody declared.
[[noreturn]] void haltUndeclared(std::u16string_view bringer, std::u16string_view kind,
                                 std::u16string_view name);

// Halts unless the name was declared.
inline void declarationRequired(bool declared, std::u16string_view bringer,
                                std::u16string_view kind, std::u16string_view name) {
    if (!declared) {
        haltUndeclared(bringer, kind, name);
    }
}

// The rows of the global functions.
localMethodRows& functionRows();

// The line of a counter; false when the listing has none of that name.
bool counterFill(const localCounter& counter);

// The names of a class that CLASSLOAD knows; null for a name, in either language and in capitals,
// that nobody declared.
struct ClassNames {
    std::u16string_view nameEng;
    std::u16string_view nameRus;
};
const ClassNames* classNames(std::u16string_view upper);

// Where a class that CLASSLOAD knows by this English name comes from; false when it knows none.
bool classFill(std::u16string_view nameEng, localClassDeclarations (*declare)());

// A class that is there, be it one that came together with others; null when none is. The name is
// the English one.
localClassDeclaration* classDeclared(std::u16string_view nameEng);

}  // namespace localLibrary
