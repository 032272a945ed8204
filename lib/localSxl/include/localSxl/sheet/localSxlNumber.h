// Numbers of programs as whole numbers of a sheet.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

// A row or column by rounding; 0, which is none, for what no 32 bits can hold.
inline std::uint32_t localSxlPosition(double value) {
    const double whole = std::round(value);
    return whole >= 0.0 && whole <= std::numeric_limits<std::uint32_t>::max()
               ? static_cast<std::uint32_t>(whole)
               : 0;
}

// A size, colour or set of flags by rounding; one beyond 32 bits is the nearest that they hold.
inline std::int32_t localSxlInteger(double value) {
    constexpr double least = std::numeric_limits<std::int32_t>::min();
    constexpr double most = std::numeric_limits<std::int32_t>::max();
    return std::isnan(value)
               ? 0
               : static_cast<std::int32_t>(std::clamp(std::round(value), least, most));
}
