// The letters of the language: its one case rule, its blanks and the units a name is made of.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

// Latin a-z, Russian а-я and ё go to capitals; every other unit stays as it is.
constexpr char16_t toUpper(char16_t unit) {
    if ((unit >= u'a' && unit <= u'z') || (unit >= u'а' && unit <= u'я')) {
        return static_cast<char16_t>(unit - 32);
    }
    return unit == u'ё' ? u'Ё' : unit;
}

inline std::u16string toUpper(std::u16string_view text) {
    std::u16string upper(text);
    for (char16_t& unit : upper) {
        unit = toUpper(unit);
    }
    return upper;
}

// Digits, Latin letters, "_", Ё, А to я, ё.
constexpr bool isNameUnit(char16_t unit) {
    return (unit >= u'0' && unit <= u'9') || (unit >= u'A' && unit <= u'Z') || unit == u'_' ||
           (unit >= u'a' && unit <= u'z') || unit == u'Ё' || (unit >= u'А' && unit <= u'я') ||
           unit == u'ё';
}

// What the scanner passes over: tab, line feed, form feed, carriage return, blank.
constexpr bool isBlankUnit(char16_t unit) {
    return unit == 32 || unit == 9 || unit == 10 || unit == 12 || unit == 13;
}

// Trimming removes tab, line feed and blank only. A carriage return stays.
constexpr bool isTrimmedUnit(char16_t unit) {
    return unit == 32 || unit == 9 || unit == 10;
}

constexpr std::u16string_view trimLeft(std::u16string_view text) {
    while (!text.empty() && isTrimmedUnit(text.front())) {
        text.remove_prefix(1);
    }
    return text;
}

constexpr std::u16string_view trimRight(std::u16string_view text) {
    while (!text.empty() && isTrimmedUnit(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

constexpr std::u16string_view trimBoth(std::u16string_view text) {
    return trimRight(trimLeft(text));
}

// True when `shortText` has at least 4 code units, is no longer than `longText` and begins it. The
// rule of the command words and of code page names.
constexpr bool isPrefix(std::u16string_view shortText, std::u16string_view longText) {
    return shortText.size() >= 4 && longText.substr(0, shortText.size()) == shortText;
}

// 32-bit FNV-1a over code units: the hash of every table of names.
constexpr std::uint32_t nameHash(std::u16string_view name) {
    std::uint32_t hash = 2166136261U;
    for (const char16_t unit : name) {
        hash = (hash ^ unit) * 16777619U;
    }
    return hash;
}

// A name in capitals with its hash, made without heap work for names of usual length.
class localUpperName {
public:
    explicit localUpperName(std::u16string_view name) : size_(name.size()) {
        char16_t* units = inline_;
        if (size_ > inlineSize) {
            heap_ = std::make_unique<char16_t[]>(size_);
            units = heap_.get();
        }
        std::uint32_t hash = 2166136261U;
        for (std::size_t i = 0; i < size_; ++i) {
            units[i] = toUpper(name[i]);
            wasUpper_ = wasUpper_ && units[i] == name[i];
            hash = (hash ^ units[i]) * 16777619U;
        }
        hash_ = hash;
    }
    localUpperName(const localUpperName&) = delete;
    localUpperName& operator=(const localUpperName&) = delete;

    std::u16string_view view() const { return {heap_ != nullptr ? heap_.get() : inline_, size_}; }
    operator std::u16string_view() const { return view(); }
    std::uint32_t hash() const { return hash_; }
    // Whether the name came in capitals already.
    bool wasUpper() const { return wasUpper_; }

private:
    static constexpr std::size_t inlineSize = 48;
    std::size_t size_;
    std::uint32_t hash_ = 0;
    bool wasUpper_ = true;
    std::unique_ptr<char16_t[]> heap_;
    char16_t inline_[inlineSize];
};
