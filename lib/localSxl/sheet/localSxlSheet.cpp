#include "localSxl/sheet/localSxlSheet.h"

#include <algorithm>
#include <utility>

#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/file/localFile.h"
#include "localInterpretatorUTF8/text/localNumberText.h"
#include "localPicture/color/localColorTable.h"
#include "localSxl/json/localSxlText.h"

namespace {

localSxlCellFormat formatOfNew() {
    localSxlCellFormat format;
    format.colorText = static_cast<std::int32_t>(localColorTable::rgbFind(u"White"));
    return format;
}

void replaceUnlessNegative(std::int32_t& field, std::int32_t value) {
    if (value >= 0) {
        field = value;
    }
}

std::int32_t sizeOf(const localSxlSheet::Sizes& sizes, std::uint32_t number,
                    std::int32_t sizeOfOthers) {
    const auto found = sizes.find(number);
    return found == sizes.end() ? sizeOfOthers : found->second;
}

}  // namespace

localSxlSheet* localSxlSheet::of(const localValueDescription& value) {
    return isClass(value, *classDeclaration()) ? static_cast<localSxlSheet*>(value.pointer)
                                               : nullptr;
}

localSxlSheet::localSxlSheet(localContextUTF8* context) : cells_(formatOfNew()) {
    for (; context != nullptr; context = context->parent()) {
        scopes_.push_back(context);
    }
}

localContextUTF8* localSxlSheet::context() const {
    const auto standing = std::find_if(scopes_.begin(), scopes_.end(), localContextUTF8::isAlive);
    return standing == scopes_.end() ? nullptr : *standing;
}

void localSxlSheet::clear() {
    localSxlCells none;
    cellsReplace(none);
}

void localSxlSheet::cellsReplace(localSxlCells& cells) noexcept {
    cells_.swap(cells);
    columnWidths_.clear();
    rowHeights_.clear();
    ++clearedCount_;
    changed();
}

localText localSxlSheet::cellText(localSxlPlace place) const {
    if (place.row == 0 || place.column == 0) {
        return numberToString(place.row == 0 ? place.column : place.row);
    }
    const localSxlCell* const cell = cells_.find(place);
    return cell == nullptr ? cells_.defaultCell().text : cell->text;
}

void localSxlSheet::cellTextSet(localSxlPlace place, localText text) {
    cells_.findOrInsert(place).text = std::move(text);
    changed();
}

// What the cell has of that kind, made with its defaults where it has none.
template <class Part>
Part& localSxlSheet::partOf(localSxlPlace place, std::unique_ptr<Part> localSxlCell::*part) {
    localSxlCell* const found = cells_.find(place);
    if (found != nullptr && found->*part != nullptr) {
        return *(found->*part);
    }
    auto made = std::make_unique<Part>();
    localSxlCell& cell = found == nullptr ? cells_.findOrInsert(place) : *found;
    cell.*part = std::move(made);
    return *(cell.*part);
}

void localSxlSheet::cellFontSet(localSxlPlace place, localText family, std::int32_t size,
                                std::int32_t flags) {
    partOf(place, &localSxlCell::font).set(std::move(family), size, flags);
    changed();
}

void localSxlSheet::cellColorSet(localSxlPlace place, const localSxlColors& colors) {
    localSxlCellFormat& format = partOf(place, &localSxlCell::format);
    replaceUnlessNegative(format.colorBorder, colors.border);
    replaceUnlessNegative(format.colorFon, colors.background);
    replaceUnlessNegative(format.colorPattern, colors.pattern);
    replaceUnlessNegative(format.colorText, colors.text);
    changed();
}

void localSxlSheet::cellAlignmentSet(localSxlPlace place, std::int32_t horizontal,
                                     std::int32_t vertical) {
    localSxlCellFormat& format = partOf(place, &localSxlCell::format);
    replaceUnlessNegative(format.alignmentH, horizontal);
    replaceUnlessNegative(format.alignmentV, vertical);
    changed();
}

void localSxlSheet::cellImageSet(localSxlPlace place, const QImage& image) {
    partOf(place, &localSxlCell::image) = image;
    changed();
}

const localSxlCellFormat& localSxlSheet::cellFormat(const localSxlCell& cell) const {
    return cell.format == nullptr ? *cells_.defaultCell().format : *cell.format;
}

std::int32_t localSxlSheet::columnWidth(std::uint32_t column) const {
    return sizeOf(columnWidths_, column, cells_.defaultCell().format->width);
}

std::int32_t localSxlSheet::rowHeight(std::uint32_t row) const {
    return sizeOf(rowHeights_, row, cells_.defaultCell().format->height);
}

void localSxlSheet::columnWidthSet(std::uint32_t column, std::int32_t width) {
    columnWidths_[column] = width;
    changed();
}

void localSxlSheet::rowHeightSet(std::uint32_t row, std::int32_t height) {
    rowHeights_[row] = height;
    changed();
}

void localSxlSheet::defaultRowHeightSet(std::int32_t height) {
    cells_.defaultCell().format->height = height;
    changed();
}

bool localSxlSheet::save(int& status, std::u16string_view fileName) {
    localText text;
    std::u16string name(fileName);
    if (!localSxlToJson(status, *this, text) ||
        !fileWrite(FileWriteMode::replace, localString::codePageUtf8, text, fileName)) {
        return false;
    }
    fileName_.swap(name);
    return true;
}

void localSxlSheet::watch(Watcher* watcher) {
    watchers_.push_back(watcher);
}

void localSxlSheet::watchEnd(Watcher* watcher) noexcept {
    std::erase(watchers_, watcher);
}

void localSxlSheet::changed() noexcept {
    for (Watcher* const watcher : watchers_) {
        watcher->sheetChanged();
    }
}

std::u16string localSxlSheet::toStringSheet() const {
    return u"Табличный документ adr [" + addressText(this) + u"] ";
}
