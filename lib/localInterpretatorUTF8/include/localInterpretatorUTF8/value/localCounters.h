// The live counters that the memory listing prints, one line each, in a fixed order. A class that
// lives in a higher library hands its counter in when it is first used; until then its line shows
// 0.
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

// Puts the counter of a class of a higher library in its line. The name is one of localCounters().
void localCounterInstall(std::string_view name, const std::int64_t* total);
