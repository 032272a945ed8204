#include "export/localSxlNumberOfText.h"

#include <cstdlib>
#include <string>

namespace {

constexpr std::size_t mostDigits = 15;

bool isDigit(char16_t unit) {
    return unit >= u'0' && unit <= u'9';
}

std::u16string_view trimmed(std::u16string_view text) {
    const std::size_t from = text.find_first_not_of(u' ');
    if (from == text.npos) {
        return {};
    }
    return text.substr(from, text.find_last_not_of(u' ') - from + 1);
}

// Takes the digits at the front.
std::string digitsTaken(std::u16string_view& text) {
    std::string digits;
    while (!text.empty() && isDigit(text.front())) {
        digits += static_cast<char>(text.front());
        text.remove_prefix(1);
    }
    return digits;
}

bool isMark(char16_t unit) {
    return std::u16string_view(u".,' _").find(unit) != std::u16string_view::npos;
}

// As STRING writes what is very large or small: e, a sign, two digits or three.
bool exponentTaken(std::u16string_view& text, std::string& number) {
    if (text.size() < 4 || text[0] != u'e' || (text[1] != u'+' && text[1] != u'-')) {
        return false;
    }
    number += text[1] == u'+' ? "e+" : "e-";
    text.remove_prefix(2);
    number += digitsTaken(text);
    return text.empty();
}

}  // namespace

std::optional<localSxlTextNumber> localSxlNumberOfText(std::u16string_view text) {
    text = trimmed(text);
    localSxlTextNumber found;
    std::string number;
    if (!text.empty() && text.front() == u'-') {
        number = "-";
        text.remove_prefix(1);
    }
    std::string whole = digitsTaken(text);
    if (whole.empty()) {
        return std::nullopt;
    }
    char16_t group = 0;
    char16_t decimal = 0;
    std::string fraction;
    while (!text.empty() && isMark(text.front()) && decimal == 0) {
        const char16_t mark = text.front();
        std::u16string_view behind = text.substr(1);
        const std::string digits = digitsTaken(behind);
        if (digits.empty()) {
            return std::nullopt;
        }
        const bool canGroup = digits.size() == 3 && mark != u'.' && (group == 0 || mark == group) &&
                              (group != 0 || whole.size() <= 3);
        const bool isLast = behind.empty() || !isMark(behind.front());
        if (canGroup && group == 0 && mark == u',' && isLast) {
            return std::nullopt;  // 1,234 is a thousand to some and more than one to others
        }
        if (canGroup) {
            group = mark;
            whole += digits;
        } else if (mark == u'.' || (mark == u',' && group != u',')) {
            decimal = mark;
            fraction = digits;
        } else {
            return std::nullopt;
        }
        text = behind;
    }
    if ((whole.size() > 1 && whole.front() == '0') || whole.size() > mostDigits) {
        return std::nullopt;
    }
    number += whole + (fraction.empty() ? "" : "." + fraction);
    if (!text.empty() && (group != 0 || !exponentTaken(text, number))) {
        return std::nullopt;
    }
    found.decimals = static_cast<int>(fraction.size());
    found.isGrouped = group != 0;
    // The C library's reader, under LC_NUMERIC "C" as everything here.
    found.value = std::strtod(number.c_str(), nullptr);
    return found;
}
