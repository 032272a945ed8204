// What a program can see of its values, as one text: two states of a context are the same when
// their texts are.
#pragma once

#include <string>

#include "localInterpretatorUTF8/context/localContextUTF8.h"

// Its variables with all that lies in them, its functions, the classes there are, and what the file
// case.txt of the working directory holds. A name or presentation that lookups miss shows.
std::string memoryState(localContextUTF8& context);

// One value; `depth` stops at lists that hold themselves.
std::string memoryStateOf(const localValueDescription& value, int depth = 0);

// Slots in use and live objects of each kind.
std::string memoryCounts();
