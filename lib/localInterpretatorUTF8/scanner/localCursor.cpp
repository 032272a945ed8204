#include "scanner/localCursor.h"

#include <array>
#include <cstdint>

namespace {

constexpr std::size_t longestNumber = 16;
constexpr std::array<double, longestNumber> powersOfTen = {
    1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

}  // namespace

bool localCursor::numberToken(double& number) {
    const char16_t* start = at;
    const char16_t* point = nullptr;
    std::uint64_t digits = 0;
    for (; at < end; ++at) {
        if (*at == u'.' && point == nullptr) {
            point = at;
        } else if (*at >= u'0' && *at <= u'9') {
            digits = digits * 10 + (*at - u'0');
        } else {
            break;
        }
    }
    if (static_cast<std::size_t>(at - start) > longestNumber) {
        return false;
    }
    // With a point there are at most 15 digits. Such a whole number and the power of ten are exact
    // doubles, so one division gives the correctly rounded value.
    number = static_cast<double>(digits);
    if (point != nullptr) {
        number /= powersOfTen[static_cast<std::size_t>(at - point - 1)];
    }
    return true;
}
