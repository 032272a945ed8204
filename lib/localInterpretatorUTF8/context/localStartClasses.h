// The classes that every program has from the start.
//
// Those that are there are registered by each new global context. Those of a library that comes at
// first use are late: somebody looks for such a name, finds nothing, and the library is brought.
#pragma once

#include <string_view>

#include "localInterpretatorUTF8/context/localContextUTF8.h"

namespace localStartClasses {

// Classes for each new global context, and for the one that stands already.
void add(localClassDeclarations (*declare)());
// Registers those added so far, the value list and the value table first.
void registerIn(localContextUTF8& context);

struct Late {
    std::u16string_view nameEng;
    std::u16string_view nameRus;
    // Gives whether the library of the class has just come; its classes are added then.
    bool (*bring)(std::u16string_view nameEng);
};
void addLate(const Late& late);
// Whether a name in capitals is that of a late class, come or not.
bool isLate(std::u16string_view upper);
// Brings the class of that name; false when it is no late one, came before or cannot come.
bool bring(std::u16string_view upper);
// Brings all that can come, for listings.
void bringAll();

// Registers classes; each that is refused is told in a line with the function's name. Gives whether
// none was.
bool registerAll(localContextUTF8& context, localClassDeclarations declarations,
                 const char* function);

}  // namespace localStartClasses
