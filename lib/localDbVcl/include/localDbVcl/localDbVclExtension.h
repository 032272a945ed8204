// What the windows over data files bring to the language: methods of the classes DATABASE,
// DATABASETABLE and DATABASERECORD.
#pragma once

#include "localInterpretatorUTF8/library/localExtension.h"

extern const localExtension localDbVclExtension;
