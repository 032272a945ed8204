// What forms bring to the language: FORMOPEN. There must be an application when it is called.
#pragma once

#include "localInterpretatorUTF8/library/localExtension.h"

extern const localExtension localFormExtension;

// Whether the program may close: with forms open a person is asked, then each form is, and the
// first No keeps all. Forms have closed when it gives true.
bool localFormCloseAll();
