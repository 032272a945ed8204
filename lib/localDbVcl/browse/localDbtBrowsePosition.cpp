#include "browse/localDbtBrowsePosition.h"

#include <algorithm>

#include "localInterpretatorUTF8/host/localHost.h"
#include "localInterpretatorUTF8/text/localTrace.h"

namespace {

void traceNumber(std::u16string_view words, std::uint32_t number) {
    traceLine(std::u16string(words) + QString::number(number).toStdU16String(), "pageDown");
}

}  // namespace

localDbtBrowsePosition::localDbtBrowsePosition(localDbDataSource200123& source,
                                               std::uint32_t rowsOnScreen)
    : visibleRows(rowsOnScreen), source_(source) {
    filledFromStart();
}

// --- Where it stands

std::uint32_t localDbtBrowsePosition::mCurRec() const {
    return mCurRow < headRows ? mRec1 : mRec1 + mCurRow - headRows;
}

std::size_t localDbtBrowsePosition::bufferRow(std::uint32_t screenRow) const {
    return screenRow < headRows ? source_.dataBuffer().size()
                                : std::size_t{mRec1} + screenRow - headRows;
}

std::uint32_t localDbtBrowsePosition::lowestFilledRow() const {
    const std::uint32_t filled = size() > mRec1 ? size() - mRec1 : 0;
    return std::min(lastScreenRow(), headRows + filled - 1);
}

void localDbtBrowsePosition::keepCursorOnRows() {
    if (mRec1 >= size()) {
        mRec1 = size() > 0 ? size() - 1 : 0;
    }
    mCurRow = std::min(std::max(mCurRow, headRows), lowestFilledRow());
}

void localDbtBrowsePosition::filledFromStart() {
    startIsInBuffer_ = true;
    mRec1 = 0;
    toScreenRow(headRows);
}

void localDbtBrowsePosition::toScreenRow(std::uint32_t row) {
    mCurRow = row;
    keepCursorOnRows();
}

// --- Refills

void localDbtBrowsePosition::place(std::ptrdiff_t row) {
    if (size() == 0) {
        mRec1 = 0;
        keepCursorOnRows();
        return;
    }
    const std::uint32_t wanted = row < 0 ? size() - 1 : static_cast<std::uint32_t>(row);
    mCurRow = std::min(std::max(mCurRow, headRows), lastScreenRow());
    const std::uint32_t above = mCurRow > headRows ? mCurRow - headRows : 0;
    if (wanted < above) {
        mCurRow = headRows + wanted;
    }
    mRec1 = wanted - std::min(wanted, above);
}

void localDbtBrowsePosition::fillAround(const localDbKey& key) {
    if (key.empty()) {
        startAnew();
        return;
    }
    // Read twice. Meant.
    source_.relativeKey(key, -halfBuffer, false);
    fillFrom(source_.relativeKey(key, -halfBuffer, false), key);
}

void localDbtBrowsePosition::fillFrom(const localDbKey& start, const localDbKey& target) {
    source_.fillFromKeyVal(start.empty() ? target : start);
    const std::ptrdiff_t row = source_.rowOfKey(target);
    startIsInBuffer_ = row < halfBuffer;
    place(row);
}

// An empty buffer may have rows by now. Without an order there can be none.
void localDbtBrowsePosition::startAnew() {
    if (source_.currentIdx() != nullptr) {
        toStart();
    }
}

void localDbtBrowsePosition::fillFromTop() {
    const localDbKey top = source_.exactKeyOfRow(mRec1);
    if (top.empty()) {
        startAnew();
        return;
    }
    source_.fillFromKeyVal(top);
    startIsInBuffer_ = startIsInBuffer_ && mRec1 == 0;
    mRec1 = 0;
}

// --- Rows

void localDbtBrowsePosition::down() {
    if (mCurRec() + 1 < size()) {
        if (mCurRow < lastScreenRow()) {
            ++mCurRow;
        } else {
            ++mRec1;
        }
        return;
    }
    const bool wasEmpty = !hasRow();
    localHost::current().beep();
    fillFromTop();
    keepCursorOnRows();
    if (!wasEmpty && mCurRec() + 1 < size()) {
        mRec1 = 1;
    }
}

void localDbtBrowsePosition::up() {
    if (mCurRow > headRows) {
        --mCurRow;
        return;
    }
    if (mRec1 == 0) {
        fillAround(source_.exactKeyOfRow(0));
    }
    if (mRec1 > 0) {
        --mRec1;
    }
}

void localDbtBrowsePosition::scrollDown() {
    const auto rowFollows = [this] { return mRec1 + dataRows() < size(); };
    if (!rowFollows()) {
        if (endIsInBuffer()) {
            return;
        }
        fillFromTop();
    }
    if (rowFollows()) {
        ++mRec1;
    }
    keepCursorOnRows();
}

void localDbtBrowsePosition::scrollUp() {
    if (mRec1 == 0) {
        if (startIsInBuffer_ || size() == 0) {
            return;
        }
        const std::uint32_t cursor = mCurRow;
        mCurRow = headRows;
        fillAround(source_.exactKeyOfRow(0));
        mCurRow = cursor;
    }
    if (mRec1 > 0) {
        --mRec1;
    }
    keepCursorOnRows();
}

// --- Pages

void localDbtBrowsePosition::pageUp() {
    const std::uint32_t highest = std::min(headRows, lowestFilledRow());
    if (mCurRow != highest) {
        mCurRow = highest;
        return;
    }
    const std::uint32_t page = std::max(dataRows(), 1U);
    if (mRec1 < page) {
        fillAround(source_.exactKeyOfRow(mRec1));
    }
    mRec1 = mRec1 <= page ? 0 : mRec1 + 1 - page;
}

void localDbtBrowsePosition::pageDown() {
    if (mCurRow < lowestFilledRow()) {
        mCurRow = lowestFilledRow();
        return;
    }
    const auto pageFollows = [this] { return size() >= mRec1 + 2 * visibleRows; };
    if (!pageFollows()) {
        traceNumber(u"в буфере не хватает строк mCurRec=", mCurRec());
        fillAround(source_.exactKeyOfRow(mCurRec()));
        traceNumber(u"after fill this->mRec1=", mRec1);
        traceNumber(u"after fill mCurRec=", mCurRec());
        if (!pageFollows()) {
            // At the end of the table the view jumps back. Meant.
            mRec1 = 0;
            keepCursorOnRows();
            return;
        }
    }
    mRec1 += dataRows() > 0 ? dataRows() - 1 : 0;
}

// --- The ends

void localDbtBrowsePosition::toStart() {
    source_.fillFromStart();
    filledFromStart();
}

void localDbtBrowsePosition::toEnd() {
    const localDbKey key = source_.keyBeforeEnd(halfBuffer);
    if (key.empty()) {
        toStart();
        return;
    }
    source_.fillFromKeyVal(key);
    // Where that row is nearer to the end than was asked for, it is the first one.
    startIsInBuffer_ = size() <= static_cast<std::uint32_t>(halfBuffer);
    mCurRow = lastScreenRow();
    place(-1);
}

void localDbtBrowsePosition::resize(std::uint32_t rows) {
    visibleRows = rows;
    if (mRec1 + dataRows() > size() && !endIsInBuffer()) {
        fillFromTop();
    }
    keepCursorOnRows();
}

// --- Other orders

bool localDbtBrowsePosition::idxSet(std::u16string_view name) {
    const localDbDataSource200123::IdxSetResult result = source_.idxSet(name, mCurRec());
    if (result.changed) {
        startIsInBuffer_ = false;
        place(result.row);
    }
    return result.changed;
}

bool localDbtBrowsePosition::find(const localDbDataSource200123::Index& index,
                                  const localDbKey& key, std::size_t exact) {
    const localDbKey found = source_.keyInOtherIndex(index, key, index);
    if (found.size() < key.size()) {
        return false;
    }
    for (std::size_t i = 0; i < key.size(); ++i) {
        const std::u16string_view given = key[i].text;
        const std::u16string_view there = found[i].text;
        if (i < exact ? there != given : !there.starts_with(given)) {
            return false;
        }
    }
    const std::ptrdiff_t row = source_.fillAroundRecord(index, found);
    startIsInBuffer_ = false;
    place(row);
    return true;
}
