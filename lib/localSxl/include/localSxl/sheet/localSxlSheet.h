// A table document: a sheet of sparse cells with fonts, colours, alignment, pictures and widths. It
// is the class TABLEDOCUMENT, and what the widget localSxl shows.
//
// Rows and columns count from 1; what was set stands in cells (localSxlCells), all else is the
// default cell's. Colours are red * 65536 + green * 256 + blue, sizes are pixels.
//
// A sheet made by `new` has the count 0 and is owned by the values it is bound to: the last one
// that lets go deletes it. Each operation asks for its memory first, so one that fails for want of
// it has changed nothing.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "localInterpretatorUTF8/value/localValueDescription.h"
#include "localSxl/sheet/localSxlCells.h"

// What an operation leaves as it is.
inline constexpr std::int32_t localSxlUnchanged = -1;

// A value below 0 leaves the cell's own.
struct localSxlColors {
    std::int32_t border = localSxlUnchanged;
    std::int32_t background = localSxlUnchanged;
    std::int32_t pattern = localSxlUnchanged;
    std::int32_t text = localSxlUnchanged;
};

class localSxlSheet final {
public:
    // Who shows a sheet. Hears of it on the thread that changed it, which has the language's turn.
    class Watcher {
    public:
        virtual ~Watcher() = default;
        virtual void sheetChanged() noexcept = 0;
    };

    static localClassDeclaration* classDeclaration();
    // The sheet that a value holds, null when it holds none. The value keeps its link.
    static localSxlSheet* of(const localValueDescription& value);

    // Event procedures are looked up in the context. A new sheet's text is white on white. Meant.
    explicit localSxlSheet(localContextUTF8* context);
    localSxlSheet(const localSxlSheet&) = delete;
    localSxlSheet& operator=(const localSxlSheet&) = delete;

    // How many values hold this sheet.
    std::uint32_t linkCounter = 0;

    // The context the sheet was made in or, when that scope was left, the innermost one around it
    // that stands; null when none does.
    localContextUTF8* context() const;
    // Name of the last file it was saved in.
    const std::u16string& fileName() const { return fileName_; }

    const localSxlCells& cells() const { return cells_; }
    // Drops everything and gives the default cell all defaults.
    void clear();
    // As clear(), and puts cells in the place of the default cell alone.
    void cellsReplace(localSxlCells& cells) noexcept;
    // How often everything was dropped: who shows the sheet goes back to its beginning.
    std::int64_t clearedCount() const { return clearedCount_; }

    // With row 0 the column's number, with column 0 the row's; the default cell's text where there
    // is no cell.
    localText cellText(localSxlPlace place) const;
    void cellTextSet(localSxlPlace place, localText text);
    // An empty family, a size not above 0 and flags below 0 leave what was described before.
    void cellFontSet(localSxlPlace place, localText family, std::int32_t size, std::int32_t flags);
    void cellColorSet(localSxlPlace place, const localSxlColors& colors);
    // Values below 0 leave the alignment.
    void cellAlignmentSet(localSxlPlace place, std::int32_t horizontal, std::int32_t vertical);
    void cellImageSet(localSxlPlace place, const QImage& image);
    // The format that holds for a cell: its own or the default cell's.
    const localSxlCellFormat& cellFormat(const localSxlCell& cell) const;

    using Sizes = std::map<std::uint32_t, std::int32_t>;
    // Those of the columns and rows that have a size of their own.
    const Sizes& columnWidths() const { return columnWidths_; }
    const Sizes& rowHeights() const { return rowHeights_; }
    // The default cell's size where the column or row has none of its own.
    std::int32_t columnWidth(std::uint32_t column) const;
    std::int32_t rowHeight(std::uint32_t row) const;
    void columnWidthSet(std::uint32_t column, std::int32_t width);
    void rowHeightSet(std::uint32_t row, std::int32_t height);
    // Of all rows that have none of their own.
    void defaultRowHeightSet(std::int32_t height);

    // Writes the SXL text into a file. False when it could not be written, which the file's writer
    // has reported; status 16 when the text is longer than a text can be.
    bool save(int& status, std::u16string_view fileName);

    // Not owned; who watches stops before it goes.
    void watch(Watcher* watcher);
    void watchEnd(Watcher* watcher) noexcept;

    // "Табличный документ adr [address] ".
    std::u16string toStringSheet() const;

private:
    template <class Part>
    Part& partOf(localSxlPlace place, std::unique_ptr<Part> localSxlCell::*part);
    void changed() noexcept;

    std::vector<localContextUTF8*> scopes_;  // from the inside out
    localSxlCells cells_;
    Sizes columnWidths_;
    Sizes rowHeights_;
    std::u16string fileName_;
    std::int64_t clearedCount_ = 0;
    std::vector<Watcher*> watchers_;
};
