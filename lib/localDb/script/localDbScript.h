// What the three classes of the data file have in common.
#pragma once

#include <string_view>

#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/value/localMethodTable.h"

// The variable of that very scope, in any case of its letters; made where there is none.
localValueDescription& localDbVariable(localContextUTF8& scope, std::u16string_view name);

// The attribute read of an object of a native class whose attributes are the variables of its
// scope. Halts on a non-null `result`. Status 10 for a name that is none of them.
bool localDbAttributeRead(int& status, localContextUTF8& scope, std::u16string_view name,
                          std::u16string_view nativeName, localValueDescription*& result);

// The method __TEST: samples 1 to 4 are windows of a library above.
bool localDbTestMethod(localCall& call);

// A native type whose objects programs only get. Its constructor says so, and makes none.
void* localDbNoConstructor(localContextUTF8* context);
template <class Native>
constexpr localNativeType localDbGivenOnly() {
    localNativeType type = localNativeOf<Native>();
    type.construct = localDbNoConstructor;
    return type;
}
