// What a statement can hold.
#pragma once

#include <string>
#include <string_view>

// Why a text cannot go to the driver as a statement: it would be cut at a letter NUL, and half of a
// surrogate pair would become another letter. Empty when it can.
std::u16string localDbUnfitText(std::u16string_view sql);
