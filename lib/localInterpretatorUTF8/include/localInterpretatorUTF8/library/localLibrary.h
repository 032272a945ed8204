// The global functions of the language: one table of all names, a row each.
//
// A row whose work lives in a higher library is filled by that library (localExtension.h); until
// then a call answers status 26, "graphic version only". So it is with the classes that CLASSLOAD
// can bring.
#pragma once

#include <span>
#include <string_view>

#include "localInterpretatorUTF8/value/localMethodTable.h"

namespace localLibrary {

// All rows in the order of the listing in the manual.
std::span<const localMethodRow> rows();

// Calls a global function by its name in capitals, with no look at functions of the program.
// `result` must be null; the caller owns the slot it gets. Statuses 16 without arguments, 26, 27,
// 31, 33 and what the function sets.
bool call(int& status, localContextUTF8* context, std::u16string_view name,
          const localArguments* args, localValueDescription*& result);

// What CLASSLOAD does: true when the class is registered afterwards. Status 14 for a name that
// nobody offers, 26 for a class of a library that is not there.
bool classLoad(int& status, localContextUTF8& context, std::u16string_view name);

}  // namespace localLibrary
