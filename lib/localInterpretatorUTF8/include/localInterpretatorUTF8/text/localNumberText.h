// Numbers as text. There is one number type, the 64-bit double, and no shortest form: the text
// shows the binary value. Nothing here looks at the locale.
#pragma once

#include <string>
#include <string_view>

// As by the printf format "%.20g": 1, 0.5, 0.10000000000000000555, 1e+20.
std::u16string numberToString(double value);

// The format language of FORMAT: "N" or "Ч", "(0)" for zero padding, width, "." and decimals, a
// decimal mark, a group mark. An empty format gives numberToString; any fault gives "#FORMAT
// ERROR".
std::u16string numberFormat(double value, std::u16string_view format);

// The number that a text begins with, as the C function atof reads it; 0 when it begins with none.
double numberFromText(std::u16string_view text);
