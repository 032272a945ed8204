// What the windows of sheets bring to the language: SHOW of the classes TABLEDOCUMENT and
// VALUETABLE. Comes behind localSxlExtension.
#pragma once

#include "localInterpretatorUTF8/library/localExtension.h"

extern const localExtension localSxlVclExtension;
