// Rows or columns one beside the other on the screen. What is no pixel wide is hidden; work is
// bounded by the room on the screen and the numbers that have a size of their own.
#pragma once

#include <cstdint>
#include <vector>

#include "localSxl/sheet/localSxlSheet.h"

// The sizes of all rows or of all columns.
struct localSxlBandSizes {
    const localSxlSheet::Sizes& own;
    std::int32_t others;

    // In pixels, and no more than what the width dialog takes.
    int of(std::uint32_t number) const;
};

localSxlBandSizes localSxlRowSizes(const localSxlSheet& sheet);
localSxlBandSizes localSxlColumnSizes(const localSxlSheet& sheet);

struct localSxlBand {
    std::uint32_t number;  // of the row or column, from 1
    int at;                // in pixels from the first
    int size;
};

// Those that show in the room from `first` on, the last one maybe in part.
std::vector<localSxlBand> localSxlBands(const localSxlBandSizes& sizes, std::uint32_t first,
                                        int room);
// The first from which all up to `last` have room; `last` itself where it alone has none.
std::uint32_t localSxlFirstBefore(const localSxlBandSizes& sizes, std::uint32_t last, int room);
// The next that is not hidden, or the same where there is none.
std::uint32_t localSxlNextShown(const localSxlBandSizes& sizes, std::uint32_t number);
std::uint32_t localSxlPreviousShown(const localSxlBandSizes& sizes, std::uint32_t number);
