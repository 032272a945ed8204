#include "scanner/localCursor.h"

#include <array>
#include <charconv>
#include <cstdint>

namespace {

constexpr std::size_t longestNumber = 16;
constexpr std::array<double, 17> powersOfTen = {1,   1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7, 1e8,
                                                1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15, 1e16};

// Two whole numbers below this are exact doubles, so their quotient is the correctly rounded value.
constexpr std::uint64_t exactLimit = std::uint64_t{1} << 53;

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
    const auto length = static_cast<std::size_t>(at - start);
    if (length > longestNumber) {
        return false;
    }
    const auto decimals = point == nullptr ? 0 : static_cast<std::size_t>(at - point - 1);
    if (digits < exactLimit) {
        number = decimals == 0 ? static_cast<double>(digits)
                               : static_cast<double>(digits) / powersOfTen[decimals];
        return true;
    }
    std::array<char, longestNumber> narrow{};
    for (std::size_t i = 0; i < length; ++i) {
        narrow[i] = static_cast<char>(start[i]);
    }
    std::from_chars(narrow.data(), narrow.data() + length, number);
    return true;
}
