// What the database library brings to the language: the classes DATABASE, DATABASETABLE and
// DATABASERECORD, and their counters.
#pragma once

#include "localInterpretatorUTF8/library/localExtension.h"

extern const localExtension localDbExtension;
