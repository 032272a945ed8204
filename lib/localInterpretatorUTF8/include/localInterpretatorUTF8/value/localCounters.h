// The live counters that the memory listing prints, one line each, in a fixed order. A class that
// lives in a higher library brings its counter with that library (localExtension.h); until then its
// line shows 0.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

struct localCounter {
    std::string_view name;      // "localValueList::counterStaticTotal"
    const std::int64_t* total;  // null while the class is not there
};

// All counters in the order of the listing.
std::span<const localCounter> localCounters();
