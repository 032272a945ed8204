// Colours by name, as programs, sheets and the colour boxes of forms know them.
//
// A name leads to one of the toolkit's global colours, told by its number there; what the colour
// looks like follows from that number. The text and the number in a row are what lists of colours
// show.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

struct localColorRow {
    std::u16string_view english;
    std::u16string_view russian;
    int globalColor;           // the toolkit's number of the colour
    std::u16string_view text;  // "#rrggbb"
    std::uint32_t number;      // red, green and blue, a byte each
};

namespace localColorTable {

// Black, which every unknown name means.
inline constexpr int globalColorOfUnknown = 2;

// All rows, in the order of the lists.
std::span<const localColorRow> rows();

// The global colour of a name in either language and any case; that of black for a name of no row.
int globalColorFind(std::u16string_view name);

// Red * 65536 + green * 256 + blue of the global colour that a name leads to.
std::uint32_t rgbFind(std::u16string_view name);

}  // namespace localColorTable
