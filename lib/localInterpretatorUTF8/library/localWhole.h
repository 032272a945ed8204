// Numbers of the language as whole numbers, without a conversion that C++ leaves undefined.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

// Truncation toward zero. What 64 bits cannot hold becomes the nearest they can; not-a-number
// becomes 0.
inline std::int64_t localWhole(double value) {
    constexpr double limit = 9223372036854775808.0;
    if (std::isnan(value)) {
        return 0;
    }
    if (value >= limit) {
        return std::numeric_limits<std::int64_t>::max();
    }
    return value < -limit ? std::numeric_limits<std::int64_t>::min()
                          : static_cast<std::int64_t>(value);
}
