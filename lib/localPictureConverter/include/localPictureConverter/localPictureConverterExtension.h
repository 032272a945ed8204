// What pictures without a screen bring to the language: the functions PIXMAPASBASE64FROMFILEGET and
// PIXMAPASBASE64PARTGET.
#pragma once

#include "localInterpretatorUTF8/library/localExtension.h"

extern const localExtension localPictureConverterExtension;
