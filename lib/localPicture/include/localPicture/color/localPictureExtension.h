// What colours bring to the language: the function COLOR.
#pragma once

#include "localInterpretatorUTF8/library/localExtension.h"

extern const localExtension localPictureExtension;
