// What sheets bring to the language: the class TABLEDOCUMENT, there from the start, without what
// needs a window.
#pragma once

#include "localInterpretatorUTF8/library/localExtension.h"

extern const localExtension localSxlExtension;
