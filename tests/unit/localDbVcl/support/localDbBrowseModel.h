// The moves of a browse, each with what it must do, in a list of all rows that plain SQL gives.
//
// What must be under the cursor is told by the place in that list. Where the moves themselves leave
// the next row in that order, the model has a name for it: Leaves.
#pragma once

#include <algorithm>
#include <map>
#include <random>

#include "browse/localDbtBrowsePosition.h"
#include "support/localDbBrowseTest.h"

class localDbBrowseModel : public localDbBrowseTest {
public:
    using Source = localDbDataSource200123;
    static constexpr std::size_t buffer = Source::bufferSize;

    // The moves that do not go where a person at a list of all rows would think.
    enum class Leaves {
        pageUpToBufferStart,  // the page ends at the buffer's first row, which may be a row more
        pageDownJumpAtEnd,    // less than two screens follow: the view jumps to the buffer's start
    };
    std::map<Leaves, int> left;

    std::mt19937 random{20260207};
    std::unique_ptr<Source> source;
    localDbtBrowsePosition* at = nullptr;
    // Ids in the order of the index, of the rows that can be walked.
    std::vector<std::string> order;
    // The place of the buffer's first row.
    std::size_t start = 0;
    // The calls of the host there were when the buffer was looked at.
    std::size_t looked = 0;

    std::uint32_t upTo(std::uint32_t most) {
        return std::uniform_int_distribution<std::uint32_t>(0, most)(random);
    }
    // Screen rows, of which one at least is for data.
    std::uint32_t anyWindow() {
        const std::uint32_t least = at == nullptr ? 2 : at->headRows + 1;
        return least + upTo(128 - least);
    }
    std::vector<std::string> ids(const std::string& what) const {
        std::vector<std::string> all;
        for (const auto& row : rows("select id from t " + what)) {
            all.push_back(row[0]);
        }
        return all;
    }

    std::size_t size() const { return source->dataBuffer().size(); }
    // The buffer is a piece of the list, as long as it can be.
    void lookAtBuffer() {
        if (looked == host.calls.size()) {
            return;
        }
        looked = host.calls.size();
        if (order.empty()) {
            ASSERT_EQ(size(), 0);
            return;
        }
        ASSERT_GT(size(), 0);
        const auto first = std::find(order.begin(), order.end(), source->cell(0, 0).toStdString());
        start = static_cast<std::size_t>(first - order.begin());
        ASSERT_EQ(size(), std::min(buffer, order.size() - start));
        for (std::size_t row = 0; row < size(); ++row) {
            ASSERT_EQ(source->cell(row, 0).toStdString(), order[start + row]);
        }
    }

    // The place in the list of the row under the cursor, and of the one on top of the screen.
    std::size_t place() const { return start + at->mCurRec(); }
    std::size_t top() const { return start + at->mRec1; }
    std::size_t last() const { return order.size() - 1; }

    void wantsCursorInData() {
        if (order.empty()) {
            ASSERT_EQ(at->mCurRow, at->headRows - 1);
            ASSERT_EQ(at->mRec1, 0);
            return;
        }
        ASSERT_GE(at->mCurRow, at->headRows);
        ASSERT_LT(at->mCurRow, at->visibleRows);
        ASSERT_LT(at->mCurRec(), size());
        ASSERT_LT(place(), order.size());
    }

    // --- The keys, each with what it must do

    void down() {
        const std::size_t before = place();
        const std::size_t topBefore = top();
        const std::size_t calls = host.calls.size();
        const bool inBuffer = at->mCurRec() + 1 < size();
        const bool bottom = at->mCurRow + 1 == at->visibleRows;
        at->down();
        lookAtBuffer();
        if (order.empty()) {
            return;
        }
        ASSERT_EQ(place(), std::min(before + 1, last()));
        ASSERT_EQ(host.calls.size() - calls, inBuffer ? 0 : 2);
        // Where rows follow, the buffer has them for the whole screen.
        ASSERT_TRUE(inBuffer || bottom || before == last());
        const bool scrolls = place() > before && (bottom || !inBuffer);
        ASSERT_EQ(top(), topBefore + (scrolls ? 1 : 0));
    }
    void up() {
        const std::size_t before = place();
        const std::size_t topBefore = top();
        const std::size_t calls = host.calls.size();
        const bool onTop = at->mCurRow == at->headRows;
        const bool inBuffer = !onTop || at->mRec1 > 0;
        at->up();
        lookAtBuffer();
        if (order.empty()) {
            return;
        }
        ASSERT_EQ(place(), before - (before > 0 ? 1 : 0));
        ASSERT_EQ(host.calls.size() - calls, inBuffer ? 0 : 1);
        ASSERT_EQ(top(), topBefore - (onTop && before > 0 ? 1 : 0));
    }
    void pageUp() {
        const std::size_t before = place();
        const std::size_t topBefore = top();
        const bool onTop = at->mCurRow == at->headRows;
        const std::size_t page = at->dataRows();
        at->pageUp();
        lookAtBuffer();
        if (order.empty()) {
            return;
        }
        if (!onTop) {
            ASSERT_EQ(top(), topBefore);
            ASSERT_EQ(place(), topBefore);
            return;
        }
        ASSERT_EQ(place(), top());
        if (at->mRec1 == 0 && before - place() != page - 1) {
            ++left[Leaves::pageUpToBufferStart];
            ASSERT_LE(before - place(), page);
            ASSERT_TRUE(place() == 0 || before - place() == page);
            return;
        }
        ASSERT_EQ(place(), before - (page - 1));
    }
    void pageDown() {
        const std::size_t before = place();
        const std::size_t topBefore = top();
        const std::size_t lowest =
            std::min(std::size_t{at->dataRows()}, size() - at->mRec1) - 1 + at->headRows;
        const std::uint32_t screenRow = at->mCurRow;
        at->pageDown();
        lookAtBuffer();
        if (order.empty()) {
            return;
        }
        if (screenRow < lowest) {
            ASSERT_EQ(at->mCurRow, lowest);
            ASSERT_EQ(top(), topBefore);
            return;
        }
        // Where the view stood before the page, in the buffer that there is now.
        const std::size_t above = screenRow - at->headRows;
        const std::size_t row = before - start;
        if (size() < row - std::min(row, above) + 2 * std::size_t{at->visibleRows}) {
            ++left[Leaves::pageDownJumpAtEnd];
            ASSERT_EQ(at->mRec1, 0);
            return;
        }
        ASSERT_EQ(place(), before + at->dataRows() - 1);
    }
    void toStart() {
        at->toStart();
        lookAtBuffer();
        if (!order.empty()) {
            ASSERT_EQ(place(), 0);
            ASSERT_EQ(at->mCurRow, at->headRows);
        }
    }
    void toEnd() {
        trace();
        at->toEnd();
        lookAtBuffer();
        if (!order.empty()) {
            ASSERT_EQ(place(), last());
            ASSERT_EQ(at->mCurRow,
                      std::min<std::size_t>(at->visibleRows - 1, last() + at->headRows));
        }
        if (source->currentIdx()->name == u"byId" && !order.empty()) {
            // One relative read, and the fill's passes.
            ASSERT_LE(statements.size(), 4);
        }
    }
    void scroll(bool on) {
        const std::size_t topBefore = top();
        const std::uint32_t screenRow = at->mCurRow;
        const std::size_t calls = host.calls.size();
        on ? at->scrollDown() : at->scrollUp();
        lookAtBuffer();
        if (order.empty()) {
            ASSERT_EQ(host.calls.size(), calls);
            return;
        }
        const bool ends = on ? topBefore + at->dataRows() > last() : topBefore == 0;
        ASSERT_EQ(top(), ends ? topBefore : on ? topBefore + 1 : topBefore - 1);
        ASSERT_EQ(at->mCurRow, screenRow);
        // At the end it is quiet: once it is known.
        const std::size_t now = host.calls.size();
        if (ends) {
            on ? at->scrollDown() : at->scrollUp();
            ASSERT_EQ(host.calls.size(), now);
        }
    }
    void resize() {
        const std::size_t topBefore = top();
        const std::size_t before = place();
        const std::uint32_t rowBefore = at->mCurRow;
        at->resize(anyWindow());
        lookAtBuffer();
        if (order.empty()) {
            return;
        }
        ASSERT_EQ(top(), topBefore);
        ASSERT_EQ(at->mCurRow, std::min(rowBefore, at->visibleRows - 1));
        if (at->mCurRow == rowBefore) {
            ASSERT_EQ(place(), before);
        }
        // No row that the table has is missing on the screen.
        ASSERT_TRUE(at->mRec1 + at->dataRows() <= size() || start + size() == order.size());
    }
    // One of the moves above, by its number.
    static constexpr std::uint32_t moves = 11;
    void move(std::uint32_t number) {
        switch (number) {
            case 0:
            case 1:
                return down();
            case 2:
            case 3:
                return up();
            case 4:
                return pageDown();
            case 5:
                return pageUp();
            case 6:
                return scroll(true);
            case 7:
                return scroll(false);
            case 8:
                return resize();
            case 9:
                return toStart();
            default:
                return toEnd();
        }
    }
    // How often a key is pressed on end: people hold the arrows.
    int times(std::uint32_t number) {
        return static_cast<int>(number < 4 ? 1 + upTo(300) : number < 8 ? 1 + upTo(9) : 1);
    }
    // Where a key may go on from: one that has moved nothing is not pressed again.
    std::pair<std::size_t, std::size_t> standing() const { return {place(), top()}; }
    // What went wrong, for a person.
    std::string after(std::uint32_t key, int pressed) const {
        return "key " + std::to_string(key) + " after " + std::to_string(pressed) + ", window of " +
               std::to_string(at->visibleRows);
    }
};
