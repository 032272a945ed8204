// Finds a part in texts from the left, at a cost that grows with the two lengths only.
//
// A short part is compared at each place. For a long one that would cost the product of the lengths
// in a text of near misses, so a table of its own repetitions tells how far to move after a
// mismatch.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

class localTextSearch {
public:
    static constexpr std::size_t nowhere = std::u16string_view::npos;

    // The part must outlive this object.
    explicit localTextSearch(std::u16string_view part);

    // The 0-based place of the first occurrence at or behind `from`. An empty part is found at
    // `from`, unless that lies behind the text.
    std::size_t find(std::u16string_view text, std::size_t from) const;

private:
    std::u16string_view part_;
    // For each unit of a long part, how many units up to it are also the part's first ones.
    std::vector<std::uint32_t> repeats_;
};
