// The modules that were offered.
#pragma once

#include <string_view>

namespace localModules {

// Loads the module that offers a class of CLASSLOAD or a start class, by its English name, unless
// it is loaded. Gives whether it has just come.
bool bringClass(std::u16string_view nameEng);

}  // namespace localModules
