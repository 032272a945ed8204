// The functions of the language that work on colours and pictures without a screen: COLOR,
// PIXMAPASBASE64FROMFILEGET and PIXMAPASBASE64PARTGET.
#pragma once

#include "localPicture/picture/localPictureConverter.h"

// Gives the language these functions. The converter is loaded from the file localPictureModule
// beside the program when a picture first asks for it; where there is none, pictures answer status
// 26.
void localPictureInstall();

// The same with a converter at hand, which is not owned.
void localPictureInstall(const localPictureConverter& converter);
