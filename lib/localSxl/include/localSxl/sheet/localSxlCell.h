// A cell of a sheet, with what was set in it.
#pragma once

#include <QImage>

#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>

#include "localInterpretatorUTF8/text/localText.h"

// Colours are 24-bit RGB, alignments the toolkit's flags.
struct localSxlCellFormat {
    std::int32_t width = 85;   // of the column, in pixels
    std::int32_t height = 20;  // of the row, in pixels
    std::int32_t alignmentH = 1;
    std::int32_t alignmentV = 128;
    std::int32_t colorBorder = 0;
    std::int32_t colorFon = 0xffffff;
    std::int32_t colorPattern = 0;
    std::int32_t colorText = 0;
};

// A font as a program described it. What it never said is drawn as the application's font has it,
// and has a value of its own in texts.
struct localSxlCellFont {
    static constexpr std::int32_t bold = 1;
    static constexpr std::int32_t italic = 2;
    // Strikeout is drawn with an underline.
    static constexpr std::int32_t strikeout = 4;
    // Stands in texts only, and is not drawn. Meant.
    static constexpr std::int32_t underline = 8;

    localText family;         // empty: never said
    std::int32_t size = 0;    // in points; 0: never said
    std::int32_t flags = -1;  // -1: never said

    // An empty family, a size not above 0 and flags below 0 leave what was said before.
    void set(localText newFamily, std::int32_t newSize, std::int32_t newFlags) noexcept {
        if (!newFamily.empty()) {
            family = std::move(newFamily);
        }
        size = newSize > 0 ? newSize : size;
        flags = newFlags < 0 ? flags : newFlags;
    }

    std::u16string_view familyInText() const {
        return family.empty() ? std::u16string_view(u"Sans Serif") : family.view();
    }
    std::int32_t sizeInText() const { return size > 0 ? size : 8; }
    std::int32_t flagsInText() const { return flags < 0 ? 0 : flags; }
};

// Where a cell stands; row by row. Rows and columns count from 1; (0, 0) is the default cell's.
struct localSxlPlace {
    std::uint32_t row = 0;
    std::uint32_t column = 0;

    bool operator==(const localSxlPlace&) const = default;
    std::uint64_t order() const { return std::uint64_t{row} << 32 | column; }
};

struct localSxlCell {
    localSxlPlace place;
    localText text;
    localText details;  // free text
    // Null where nothing was set.
    std::unique_ptr<localSxlCellFont> font;
    std::unique_ptr<localSxlCellFormat> format;
    std::unique_ptr<QImage> image;
};
