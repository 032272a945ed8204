// Entries of the language for the system's developers that open a window with a text: ___TEST and
// ___TEST__TEXTBROWSER. There must be an application when they are called.
#pragma once

#include "localInterpretatorUTF8/library/localExtension.h"

extern const localExtension localConsoleExtension;
