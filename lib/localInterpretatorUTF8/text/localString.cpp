#include "localInterpretatorUTF8/text/localString.h"

#include <array>

#include "localInterpretatorUTF8/text/localCharacters.h"

namespace localString {
namespace {

constexpr char unknownByte = static_cast<char>(255);

void appendCP1251(std::string& bytes, char16_t unit) {
    if (unit < 256) {
        // 128 to 255 go out as they are, though the page has other signs there. Meant.
        bytes += static_cast<char>(unit);
    } else if (unit == u'Ё') {
        bytes += static_cast<char>(168);
    } else if (unit == u'ё') {
        bytes += static_cast<char>(184);
    } else if (unit >= u'А' && unit <= u'я') {
        bytes += static_cast<char>(unit - 848);
    } else {
        bytes += unknownByte;
    }
}

void appendCP866(std::string& bytes, char16_t unit) {
    if (unit < 128) {
        bytes += static_cast<char>(unit);
    } else if (unit == u'Ё') {
        // The places of Ё and ё in CP1251, not in CP866: the reader below expects 240 and 241, and
        // the two letters do not survive a round trip. Meant, for files written so must stay as
        // they are.
        bytes += static_cast<char>(168);
    } else if (unit == u'ё') {
        bytes += static_cast<char>(184);
    } else if (unit >= u'А' && unit <= u'п') {
        bytes += static_cast<char>(unit - 912);
    } else if (unit >= u'р' && unit <= u'я') {
        bytes += static_cast<char>(unit - 864);
    } else {
        bytes += unknownByte;
    }
}

void appendUtf8(std::string& bytes, char16_t unit) {
    char pair[2];
    bytes.append(pair, toUtf8(unit, pair));
}

char16_t fromCP1251(unsigned char byte) {
    if (byte < 128) {
        return byte;
    }
    if (byte == 168) {
        return u'Ё';
    }
    return byte == 184 ? u'ё' : static_cast<char16_t>(byte + 848);
}

char16_t fromCP866(unsigned char byte) {
    if (byte < 128) {
        return byte;
    }
    if (byte == 240) {
        return u'Ё';
    }
    if (byte == 241) {
        return u'ё';
    }
    if (byte <= 175) {
        return static_cast<char16_t>(byte + 912);
    }
    return byte >= 224 && byte <= 239 ? static_cast<char16_t>(byte + 864)
                                      : static_cast<char16_t>(byte);
}

std::u16string fromUtf8Bytes(std::string_view bytes) {
    std::u16string text;
    text.reserve(bytes.size());
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        const bool hasNext = i + 1 < bytes.size();
        if (byte < 128) {
            text += static_cast<char16_t>(byte);
        } else if (byte == 0xD0 && hasNext) {
            text += static_cast<char16_t>(static_cast<signed char>(bytes[++i]) + 1152);
        } else if (byte == 0xD1 && hasNext) {
            text += static_cast<char16_t>(static_cast<signed char>(bytes[++i]) + 1216);
        } else {
            text += static_cast<char16_t>(255);
        }
    }
    return text;
}

constexpr std::string_view base64Alphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

constexpr std::array<signed char, 128> base64Values = [] {
    std::array<signed char, 128> values{};
    values.fill(-1);
    for (std::size_t i = 0; i < base64Alphabet.size(); ++i) {
        values[static_cast<unsigned char>(base64Alphabet[i])] = static_cast<signed char>(i);
    }
    return values;
}();

}  // namespace

std::size_t toUtf8(char16_t unit, char (&bytes)[2]) {
    const auto one = [&bytes](char byte) {
        bytes[0] = byte;
        return std::size_t{1};
    };
    const auto two = [&bytes](int first, int second) {
        bytes[0] = static_cast<char>(first);
        bytes[1] = static_cast<char>(second);
        return std::size_t{2};
    };
    if (unit < 256) {
        // 128 to 255 go out as the single byte, which is no valid UTF-8. Meant.
        return one(static_cast<char>(unit));
    }
    if (unit == u'Ё') {
        return two(0xD0, 0x81);
    }
    if (unit == u'ё') {
        return two(0xD1, 0x91);
    }
    if (unit >= u'А' && unit <= u'п') {
        return two(0xD0, (unit & 0xFF) + 128);
    }
    return unit >= u'р' && unit <= u'я' ? two(0xD1, (unit & 0xFF) + 64) : one(unknownByte);
}

possibleCodePage codePageFromName(std::u16string_view name) {
    const std::u16string upper = toUpper(trimBoth(name));
    if (isPrefix(upper, u"CP866")) {
        return codePageCP866;
    }
    return isPrefix(upper, u"CP1251") ? codePageCP1251 : codePageUtf8;
}

std::string toBytes(std::u16string_view text, possibleCodePage codePage) {
    std::string bytes;
    if (codePage == codePageBase64) {
        return fromBase64(text);
    }
    bytes.reserve(text.size());
    switch (codePage) {
        case codePageCP1251:
            for (const char16_t unit : text) {
                appendCP1251(bytes, unit);
            }
            break;
        case codePageCP866:
            for (const char16_t unit : text) {
                appendCP866(bytes, unit);
            }
            break;
        default:
            for (const char16_t unit : text) {
                appendUtf8(bytes, unit);
            }
            break;
    }
    return bytes;
}

std::u16string fromBytes(std::string_view bytes, possibleCodePage codePage) {
    if (codePage == codePageBase64) {
        return toBase64(bytes);
    }
    if (codePage != codePageCP1251 && codePage != codePageCP866) {
        return fromUtf8Bytes(bytes);
    }
    std::u16string text;
    text.reserve(bytes.size());
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        text += codePage == codePageCP1251 ? fromCP1251(value) : fromCP866(value);
    }
    return text;
}

std::u16string toBase64(std::string_view bytes) {
    std::u16string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::size_t left = bytes.size() - i;
        unsigned group = static_cast<unsigned char>(bytes[i]) * 0x10000U;
        if (left > 1) {
            group += static_cast<unsigned char>(bytes[i + 1]) * 0x100U;
        }
        if (left > 2) {
            group += static_cast<unsigned char>(bytes[i + 2]);
        }
        text += static_cast<char16_t>(base64Alphabet[group >> 18]);
        text += static_cast<char16_t>(base64Alphabet[group >> 12 & 63]);
        text += left > 1 ? static_cast<char16_t>(base64Alphabet[group >> 6 & 63]) : u'=';
        text += left > 2 ? static_cast<char16_t>(base64Alphabet[group & 63]) : u'=';
    }
    return text;
}

std::string fromBase64(std::u16string_view text) {
    std::string bytes;
    bytes.reserve(text.size() / 4 * 3);
    unsigned group = 0;
    int bits = 0;
    for (const char16_t unit : text) {
        const int value = unit < 128 ? base64Values[unit] : -1;
        if (value < 0) {
            continue;
        }
        group = (group << 6 | static_cast<unsigned>(value)) & 0xFFFFFF;
        bits += 6;
        if (bits >= 8) {
            bits -= 8;
            bytes += static_cast<char>(group >> bits & 0xFF);
        }
    }
    return bytes;
}

}  // namespace localString
