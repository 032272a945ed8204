// The functions of the language that need a widget: PIXMAPASBASE64SHOW. There must be an
// application when they are called.
#pragma once

#include "localInterpretatorUTF8/library/localExtension.h"

extern const localExtension localVclExtension;
