#include "localSxl/sheet/localSxlCells.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

#include "localInterpretatorUTF8/text/localNumberText.h"

namespace {

constexpr std::uint32_t last = 4294967295;

std::vector<localSxlPlace> placesOf(const localSxlCells& cells) {
    std::vector<localSxlPlace> places;
    for (const localSxlCell& cell : cells.all()) {
        places.push_back(cell.place);
    }
    return places;
}

localSxlCell cellAt(localSxlPlace place, std::u16string_view text) {
    localSxlCell cell;
    cell.place = place;
    cell.text = text;
    return cell;
}

TEST(localSxlCells, beginsWithTheDefaultCell) {
    const localSxlCells cells;
    ASSERT_EQ(cells.all().size(), 1U);
    EXPECT_EQ(cells.defaultCell().place, localSxlPlace());
    EXPECT_EQ(cells.defaultCell().format->width, 85);
    EXPECT_EQ(cells.lastRow(), 0U);
    EXPECT_EQ(cells.lastColumn(), 0U);
    EXPECT_EQ(cells.find({1, 1}), nullptr);
    EXPECT_EQ(cells.findFrom({1, 1}), nullptr);
}

TEST(localSxlCells, findsWhatWasMadeAndWhatComesNext) {
    localSxlCells cells;
    localSxlCell& made = cells.findOrInsert({3, 2});
    EXPECT_EQ(&cells.findOrInsert({3, 2}), &made);
    EXPECT_EQ(cells.find({3, 2}), &made);
    localSxlCell& atEnd = cells.findOrInsert({last, last});
    EXPECT_EQ(cells.find({3, 2}), &made) << "cells never move";
    EXPECT_EQ(cells.findFrom({1, 1}), &made);
    EXPECT_EQ(cells.findFrom({3, 2}), &made);
    EXPECT_EQ(cells.findFrom({3, 3}), &atEnd);
    EXPECT_EQ(cells.lastRow(), last);
    EXPECT_EQ(cells.lastColumn(), last);
}

// Against a plain vector that is searched from its beginning.
TEST(localSxlCells, anyMixtureOfOperationsKeepsTheOrder) {
    std::mt19937 random(7);
    const auto below = [&random](std::uint32_t end) {
        return static_cast<std::uint32_t>(random() % end);
    };
    for (int round = 0; round < 200; ++round) {
        localSxlCells cells;
        std::vector<localSxlPlace> model{{0, 0}};
        for (int step = 0; step < 60; ++step) {
            const localSxlPlace place{below(6), below(4)};
            const auto first = std::find(model.begin(), model.end(), place);
            if (below(4) == 0) {
                cells.append(cellAt(place, {}));
                model.push_back(place);
            } else {
                cells.findOrInsert(place);
                if (first == model.end()) {
                    // Before the first cell of the smallest place behind it.
                    auto next = model.end();
                    for (auto at = model.begin(); at != model.end(); ++at) {
                        if (at->order() > place.order() &&
                            (next == model.end() || at->order() < next->order())) {
                            next = at;
                        }
                    }
                    model.insert(next, place);
                }
            }
            ASSERT_EQ(placesOf(cells), model) << round << ' ' << step;
        }
    }
}

TEST(localSxlCells, theFirstOfEqualPlacesIsFound) {
    localSxlCells cells;
    cells.append(cellAt({2, 2}, u"first"));
    cells.append(cellAt({1, 1}, u"other"));
    cells.append(cellAt({2, 2}, u"second"));
    EXPECT_EQ(cells.find({2, 2})->text.view(), u"first");
    EXPECT_EQ(cells.all().back().text.view(), u"second");
    cells.append(cellAt({0, 0}, u"a second default cell"));
    EXPECT_TRUE(cells.defaultCell().text.empty());
}

// A new cell and a lookup cost a number of steps that grows with the logarithm of the cells.
TEST(localSxlCells, whatIsComparedAndMovedGrowsAsTheLogarithm) {
    enum class Order { byRow, reverse, random };
    for (const Order order : {Order::byRow, Order::reverse, Order::random}) {
        for (const std::uint32_t count : {1000U, 10000U, 300000U}) {
            std::vector<std::uint32_t> rows(count);
            for (std::uint32_t i = 0; i < count; ++i) {
                rows[i] = order == Order::reverse ? count - i : i + 1;
            }
            if (order == Order::random) {
                std::shuffle(rows.begin(), rows.end(), std::mt19937(7));
            }
            localSxlCells cells;
            const double logarithm = std::log2(count);
            std::int64_t most = 0;
            std::int64_t before = cells.comparedCount();
            const auto compared = [&] {
                most = std::max(most, cells.comparedCount() - before);
                before = cells.comparedCount();
            };
            for (const std::uint32_t row : rows) {
                cells.findOrInsert({row, 5});
                compared();
            }
            EXPECT_LE(static_cast<double>(most), 4 * logarithm) << count;
            EXPECT_LE(static_cast<double>(cells.movedCount()) / count, 5 * logarithm) << count;
            most = 0;
            for (const std::uint32_t row : rows) {
                ASSERT_EQ(cells.find({row, 5})->place.row, row);
                compared();
            }
            EXPECT_LE(static_cast<double>(most), 2 * logarithm) << count;
            EXPECT_GT(most, 0);
            // All of them, in their order.
            localSxlPlace place{1, 1};
            for (std::uint32_t row = 1; row <= count; ++row) {
                const localSxlCell* const cell = cells.findFrom(place);
                ASSERT_NE(cell, nullptr);
                ASSERT_EQ(cell->place, (localSxlPlace{row, 5}));
                place = {row, 6};
            }
            EXPECT_EQ(cells.findFrom(place), nullptr);
        }
    }
}

}  // namespace
