#include "localInterpretatorUTF8/text/localNumberText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "localInterpretatorUTF8/text/localString.h"

namespace {

std::u16string widened(std::string_view ascii) {
    return std::u16string(ascii.begin(), ascii.end());
}

std::u16string formatError() {
    return u"#FORMAT ERROR";
}

constexpr bool isDigit(char16_t unit) {
    return unit >= u'0' && unit <= u'9';
}

// The parts of a format text.
struct NumberFormat {
    bool zeroPad = false;
    std::size_t width = 0;
    std::size_t decimals = 0;
    char16_t decimalMark = u'.';
    char16_t groupMark = u' ';  // a blank stands for no grouping
};

// A width or a number of decimals that no result could have is as faulty as a letter in its place.
constexpr std::size_t maxFormatField = 100000;

bool readDigits(std::u16string_view format, std::size_t& at, std::size_t& number) {
    number = 0;
    while (at < format.size() && isDigit(format[at])) {
        number = number * 10 + (format[at] - u'0');
        if (number > maxFormatField) {
            return false;
        }
        ++at;
    }
    return true;
}

bool readFormat(std::u16string_view format, bool negative, NumberFormat& parts) {
    if (format[0] != u'N' && format[0] != u'Ч') {
        return false;
    }
    std::size_t at = 1;
    if (at < format.size() && format[at] == u'(') {
        if (format.substr(at, 3) != u"(0)") {
            return false;
        }
        parts.zeroPad = true;
        at += 3;
    }
    if (at >= format.size() || !readDigits(format, at, parts.width)) {
        return false;
    }
    if (negative) {
        if (parts.width <= 1) {
            return false;
        }
        --parts.width;
    }
    if (at < format.size() && format[at] == u'.') {
        ++at;
        if (!readDigits(format, at, parts.decimals)) {
            return false;
        }
    }
    if (at < format.size()) {
        const char16_t mark = format[at++];
        if (mark != u' ' && !isDigit(mark)) {
            parts.decimalMark = mark;
        }
    }
    if (at < format.size()) {
        parts.groupMark = format[at++];
        if (parts.groupMark == u' ' || isDigit(parts.groupMark)) {
            return false;
        }
    }
    return at == format.size() && parts.decimalMark != parts.groupMark && parts.width >= 1 &&
           parts.decimals <= parts.width - 1;
}

// The decimals of a number below 1 as one whole number, in full length: no integer type holds more
// than 18. The text of a rest that rounds up to 1 is one digit longer.
std::string decimalsText(double rest, std::size_t decimals) {
    // Larger powers of ten are not exact as doubles: from there on the binary value is written out.
    constexpr std::size_t largestExactPower = 22;
    if (decimals <= largestExactPower) {
        char buffer[largestExactPower + 8];
        const double whole = std::round(rest * std::pow(10.0, static_cast<double>(decimals)));
        const int length = std::snprintf(buffer, sizeof buffer, "%.0f", whole);
        return std::string(buffer, static_cast<std::size_t>(length));
    }
    std::string text(decimals + 3, '\0');  // with "0." and the closing zero
    std::snprintf(text.data(), text.size(), "%.*f", static_cast<int>(decimals), rest);
    return text.substr(2, decimals);
}

// The text of a number too large for its field: nines, and the point of the language whatever
// decimal mark is asked for, no sign. Meant.
std::u16string overflow(const NumberFormat& parts, bool negative) {
    std::u16string nines(parts.width + (negative ? 1 : 0), u'9');
    if (parts.decimals != 0) {
        nines[nines.size() - parts.decimals] = u'.';
    }
    return nines;
}

std::u16string grouped(std::u16string_view digits, char16_t mark) {
    std::u16string text;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i != 0 && (digits.size() - i) % 3 == 0) {
            text += mark;
        }
        text += digits[i];
    }
    return text;
}

}  // namespace

std::u16string numberToString(double value) {
    char buffer[64];
    constexpr double exactLimit = 1e15;
    if (value > -exactLimit && value < exactLimit) {
        const auto whole = static_cast<std::int64_t>(value);
        if (static_cast<double>(whole) == value && (whole != 0 || !std::signbit(value))) {
            const auto end = std::to_chars(buffer, buffer + sizeof buffer, whole).ptr;
            return widened({buffer, static_cast<std::size_t>(end - buffer)});
        }
    }
    const int length = std::snprintf(buffer, sizeof buffer, "%.20g", value);
    return widened({buffer, static_cast<std::size_t>(length)});
}

std::u16string numberFormat(double value, std::u16string_view format) {
    if (format.empty()) {
        return numberToString(value);
    }
    const bool negative = value < 0;
    NumberFormat parts;
    if (!readFormat(format, negative, parts)) {
        return formatError();
    }
    // The part in front of the point is a 64-bit integer; a number beyond that fits no field.
    constexpr double limit = 9223372036854775808.0;
    if (std::fabs(value) >= limit) {
        return overflow(parts, negative);
    }
    const double number = std::isnan(value) ? 0.0 : value;
    auto whole = static_cast<std::int64_t>(number);
    const double rest = std::fabs(number - static_cast<double>(whole));
    whole = std::abs(whole);

    std::u16string fraction;
    if (parts.decimals != 0) {
        const std::u16string restText = widened(decimalsText(rest, parts.decimals));
        fraction = std::u16string(parts.decimals, u'0') + restText;
        fraction.erase(0, fraction.size() - parts.decimals);
        if (restText.size() > parts.decimals) {
            ++whole;  // the fraction rounded up to 1
        }
    }
    const std::size_t field = parts.decimals == 0 ? parts.width : parts.width - 1 - parts.decimals;
    std::u16string digits = widened(std::to_string(whole));
    if (digits.size() > field) {
        return overflow(parts, negative);
    }
    if (parts.groupMark != u' ') {
        digits = grouped(digits, parts.groupMark);
        if (digits.size() > field) {
            return formatError();
        }
    }
    const std::u16string padding(field - digits.size(), parts.zeroPad ? u'0' : u' ');
    const std::u16string sign = negative ? u"-" : u"";
    std::u16string text = parts.zeroPad ? sign + padding + digits : padding + sign + digits;
    if (parts.decimals != 0) {
        text += parts.decimalMark;
        text += fraction;
    }
    return text;
}

double numberFromText(std::u16string_view text) {
    return std::atof(localString::toUtf8(text).c_str());
}
