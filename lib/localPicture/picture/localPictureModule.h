// The converter in a library of its own, for programs that do not stand on the toolkit.
#pragma once

#include <string_view>

#include "localPicture/picture/localPictureConverter.h"

// Loads the library from a folder. Null where it is not there. The converter lives as long as the
// process.
const localPictureConverter* localPictureModuleLoad(std::u16string_view folder);
