// DATABASE.TREESHOW().
#pragma once

#include "localInterpretatorUTF8/value/localMethodTable.h"

// Reads tables and fields on the connection of the calling thread and shows them in a window titled
// "tree". A connection that does not open gives a tree without tables.
bool localDbTreeShow(localCall& call);
