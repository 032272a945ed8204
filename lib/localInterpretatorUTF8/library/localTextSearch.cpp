#include "library/localTextSearch.h"

namespace {
constexpr std::size_t longestComparedDirectly = 16;
}

localTextSearch::localTextSearch(std::u16string_view part) : part_(part) {
    if (part_.size() <= longestComparedDirectly) {
        return;
    }
    repeats_.resize(part_.size());
    std::uint32_t matched = 0;
    for (std::size_t i = 1; i < part_.size(); ++i) {
        while (matched != 0 && part_[i] != part_[matched]) {
            matched = repeats_[matched - 1];
        }
        if (part_[i] == part_[matched]) {
            ++matched;
        }
        repeats_[i] = matched;
    }
}

std::size_t localTextSearch::find(std::u16string_view text, std::size_t from) const {
    if (repeats_.empty()) {
        return text.find(part_, from);
    }
    std::size_t matched = 0;
    for (std::size_t i = from; i < text.size(); ++i) {
        while (matched != 0 && text[i] != part_[matched]) {
            matched = repeats_[matched - 1];
        }
        if (text[i] == part_[matched]) {
            ++matched;
        }
        if (matched == part_.size()) {
            return i + 1 - matched;
        }
    }
    return nowhere;
}
