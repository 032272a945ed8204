// The text of HELP.
#pragma once

#include <string_view>

extern const std::u16string_view localManualBrief;
