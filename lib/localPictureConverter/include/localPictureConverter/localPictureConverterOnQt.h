// The converter of pictures made of the toolkit's images; needs neither an application nor a
// display.
#pragma once

#include "localPicture/picture/localPictureConverter.h"

const localPictureConverter& localPictureConverterOnQt();
