#include "json/localJsonText.h"

#include "localInterpretatorUTF8/json/localJsonReader.h"
#include "localInterpretatorUTF8/json/localJsonValue.h"

namespace {

// The letter that a unit is written as behind a backslash; 0 for a unit that is written as it is.
constexpr char16_t escapeLetter(char16_t unit) {
    switch (unit) {
        case u'\'':
        case u'"':
        case u'\\':
        case u'/':
        case u'[':
        case u']':
        case u'{':
        case u'}':
            return unit;
        case u'\t':
            return u't';
        case u'\n':
            return u'n';
        case u'\r':
            return u'r';
        case u'\f':
            return u'f';
        case u'\b':
            return u'b';
        default:
            return 0;
    }
}

// The way back; 0 for what is no escape of one letter. Brackets and braces are none, so the
// backslash that is written before them is read as a part of the text. Meant.
constexpr char16_t escapedUnit(char16_t letter) {
    switch (letter) {
        case u'\'':
        case u'"':
        case u'\\':
        case u'/':
            return letter;
        case u't':
            return u'\t';
        case u'n':
            return u'\n';
        case u'r':
            return u'\r';
        case u'f':
            return u'\f';
        case u'b':
            return u'\b';
        default:
            return 0;
    }
}

template <class Put>
void escape(std::u16string_view text, Put put) {
    std::size_t plain = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (const char16_t letter = escapeLetter(text[i]); letter != 0) {
            const char16_t pair[] = {u'\\', letter};
            put(text.substr(plain, i - plain));
            put(std::u16string_view(pair, 2));
            plain = i + 1;
        }
    }
    put(text.substr(plain));
}

constexpr int hexadecimalDigit(char16_t unit) {
    if (unit >= u'0' && unit <= u'9') {
        return unit - u'0';
    }
    if (unit >= u'a' && unit <= u'f') {
        return unit - u'a' + 10;
    }
    return unit >= u'A' && unit <= u'F' ? unit - u'A' + 10 : -1;
}

// The unit that four hexadecimal digits stand for. False for fewer or others.
bool fourDigits(std::u16string_view rest, char16_t& unit) {
    if (rest.size() < 4) {
        return false;
    }
    int value = 0;
    for (const char16_t digit : rest.substr(0, 4)) {
        const int part = hexadecimalDigit(digit);
        if (part < 0) {
            return false;
        }
        value = value * 16 + part;
    }
    unit = static_cast<char16_t>(value);
    return true;
}

// Reads the escape that the cursor is at. What is none leaves the backslash as a unit of the text.
void resolveEscape(localCursor& cursor, std::u16string& text) {
    ++cursor.at;
    if (cursor.atEnd()) {
        text += u'\\';
        return;
    }
    if (const char16_t unit = escapedUnit(*cursor.at); unit != 0) {
        text += unit;
        ++cursor.at;
        return;
    }
    char16_t unit = 0;
    if (*cursor.at == u'u' && fourDigits({cursor.at + 1, cursor.left() - 1}, unit)) {
        text += unit;
        cursor.at += 5;
        return;
    }
    text += u'\\';
}

}  // namespace

void localJsonOutput::putEscaped(std::u16string_view piece) {
    escape(piece, [this](std::u16string_view part) { put(part); });
}

std::u16string jsonEscape(std::u16string_view text) {
    std::u16string escaped;
    escaped.reserve(text.size());
    escape(text, [&escaped](std::u16string_view part) { escaped += part; });
    return escaped;
}

std::u16string_view localJsonString(localCursor& cursor, std::u16string& scratch) {
    bool isPlain = true;
    const char16_t* start = cursor.at;
    while (!cursor.atEnd() && *cursor.at != u'"') {
        if (*cursor.at != u'\\') {
            ++cursor.at;
            continue;
        }
        if (isPlain) {
            scratch.clear();
            isPlain = false;
        }
        scratch.append(start, cursor.at);
        resolveEscape(cursor, scratch);
        start = cursor.at;
    }
    const std::u16string_view rest(start, static_cast<std::size_t>(cursor.at - start));
    if (isPlain) {
        return rest;
    }
    return scratch += rest;
}

std::u16string localInterpretatorUTF8::scanStringGetJsonStringToken(const std::u16string& text,
                                                                    localPosition& pos) {
    localCursor cursor(text, pos);
    std::u16string scratch;
    std::u16string token(localJsonString(cursor, scratch));
    pos = cursor.position();
    return token;
}
