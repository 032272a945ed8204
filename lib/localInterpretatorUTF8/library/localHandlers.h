// The handlers behind the rows of the library's table, by theme. Each starts with arguments that fit its
// pattern.
#pragma once

#include "localInterpretatorUTF8/class/localMethodTable.h"

namespace localHandlers {

// Objects, classes and display.
bool classLoad(localCall& call);
bool classLoaded(localCall& call);
bool contextGet(localCall& call);
bool createObject(localCall& call);

// Developer entries.
bool test00001(localCall& call);

}  // namespace localHandlers
