// What the database library brings to the language: the classes DATABASE, DATABASETABLE and
// DATABASERECORD, and their counters.
#pragma once

#include "localInterpretatorUTF8/library/localExtension.h"

extern const localExtension localDbExtension;

// The data file is from now on the one that the environment variable KORVO_DATA names; a name
// without a folder counts from where the process was started. Nothing where it is not set.
void localDbDataFileOfEnvironment();
