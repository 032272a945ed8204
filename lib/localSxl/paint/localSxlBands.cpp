#include "localSxl/paint/localSxlBands.h"

#include <algorithm>
#include <limits>

namespace {

constexpr std::uint32_t lastNumber = std::numeric_limits<std::uint32_t>::max();
constexpr std::int32_t largestShown = 65535;  // pixels

}  // namespace

int localSxlBandSizes::of(std::uint32_t number) const {
    const auto found = own.find(number);
    return std::clamp(found == own.end() ? others : found->second, 0, largestShown);
}

localSxlBandSizes localSxlRowSizes(const localSxlSheet& sheet) {
    return {sheet.rowHeights(), sheet.cells().defaultCell().format->height};
}

localSxlBandSizes localSxlColumnSizes(const localSxlSheet& sheet) {
    return {sheet.columnWidths(), sheet.cells().defaultCell().format->width};
}

std::uint32_t localSxlNextShown(const localSxlBandSizes& sizes, std::uint32_t number) {
    auto own = sizes.own.upper_bound(number);
    for (std::uint32_t next = number; next != lastNumber;) {
        ++next;
        if (own == sizes.own.end() || own->first != next) {
            if (sizes.others > 0) {
                return next;
            }
            if (own == sizes.own.end()) {
                return number;
            }
            next = own->first;
        }
        if (own->second > 0) {
            return next;
        }
        ++own;
    }
    return number;
}

std::uint32_t localSxlPreviousShown(const localSxlBandSizes& sizes, std::uint32_t number) {
    auto own = std::make_reverse_iterator(sizes.own.lower_bound(number));
    for (std::uint32_t previous = number; previous > 1;) {
        --previous;
        if (own == sizes.own.rend() || own->first != previous) {
            if (sizes.others > 0) {
                return previous;
            }
            if (own == sizes.own.rend()) {
                return number;
            }
            previous = own->first;
        }
        if (own->second > 0) {
            return previous;
        }
        ++own;
    }
    return number;
}

std::vector<localSxlBand> localSxlBands(const localSxlBandSizes& sizes, std::uint32_t first,
                                        int room) {
    std::vector<localSxlBand> bands;
    std::uint32_t number = sizes.of(first) > 0 ? first : localSxlNextShown(sizes, first);
    for (int at = 0; at < room;) {
        const int size = sizes.of(number);
        if (size == 0) {
            break;
        }
        bands.push_back({number, at, size});
        at += size;
        const std::uint32_t next = localSxlNextShown(sizes, number);
        if (next == number) {
            break;
        }
        number = next;
    }
    return bands;
}

std::uint32_t localSxlFirstBefore(const localSxlBandSizes& sizes, std::uint32_t last, int room) {
    std::uint32_t first = last;
    for (int used = sizes.of(last);;) {
        const std::uint32_t previous = localSxlPreviousShown(sizes, first);
        used += sizes.of(previous);
        if (previous == first || used > room) {
            return first;
        }
        first = previous;
    }
}
