#include "localInterpretatorUTF8/container/localValueTable.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "localInterpretatorUTF8/host/localHalt.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/text/localCharacters.h"
#include "localInterpretatorUTF8/text/localNumberText.h"
#include "localInterpretatorUTF8/value/localSlot.h"

std::int64_t localValueTable::counterStaticTotal = 0;

namespace {

// What a row is sorted by, taken from its cell once.
template <class Key>
struct SortedRow {
    Key key;
    std::size_t row;
};

bool isGreater(const SortedRow<double>& a, const SortedRow<double>& b) {
    return a.key > b.key;
}
bool isGreater(const SortedRow<localText>& a, const SortedRow<localText>& b) {
    return a.key.view() > b.key.view();
}

bool isUnordered(const SortedRow<double>& row) {
    return std::isnan(row.key);
}
bool isUnordered(const SortedRow<localText>&) {
    return false;
}

// The order that exchanging neighbours leads to. A key that is not a number is neither greater nor
// smaller than any other: its row keeps its place and no row passes it, so that the rows between
// two such are sorted among themselves.
template <class Key>
void sortRows(std::vector<SortedRow<Key>>& rows, bool descending) {
    for (auto from = rows.begin(); from != rows.end();) {
        const auto to =
            std::find_if(from, rows.end(), [](const auto& row) { return isUnordered(row); });
        std::stable_sort(from, to, [descending](const auto& a, const auto& b) {
            return descending ? isGreater(a, b) : isGreater(b, a);
        });
        from = to == rows.end() ? to : to + 1;
    }
}

template <class Key, class KeyOf>
std::vector<SortedRow<Key>> sortedRows(std::size_t count, bool descending, KeyOf keyOf) {
    std::vector<SortedRow<Key>> sorted;
    sorted.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        sorted.push_back({keyOf(i), i});
    }
    sortRows(sorted, descending);
    return sorted;
}

template <class Row, class Key>
void arrange(std::vector<Row>& rows, const std::vector<SortedRow<Key>>& order) {
    std::vector<Row> arranged;
    arranged.reserve(rows.size());
    for (const SortedRow<Key>& sorted : order) {
        arranged.push_back(std::move(rows[sorted.row]));
    }
    rows.swap(arranged);
}

}  // namespace

localValueTable* localValueTable::of(const localValueDescription& value) {
    return isClass(value, *classDeclaration()) ? static_cast<localValueTable*>(value.pointer)
                                               : nullptr;
}

std::size_t localValueTable::columnAdd(std::u16string_view name) {
    const localUpperName upper(name);
    // Room first: a row shorter than the columns would be read beside its end.
    for (Row& row : rows_) {
        if (row.size() == row.capacity()) {
            row.reserve(std::max<std::size_t>(row.size() * 2, 1));
        }
    }
    columns_.add({localText(upper.view()), upper.hash()});
    for (Row& row : rows_) {
        row.emplace_back();
    }
    return columnsCount();
}

void localValueTable::cut(std::size_t rows, std::size_t columns) {
    rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(rows), rows_.end());
    while (columnsCount() > columns) {
        columns_.removeLast();
        for (Row& row : rows_) {
            row.pop_back();
        }
    }
}

std::size_t localValueTable::columnNumber(std::u16string_view name) const {
    const localUpperName upper(name);
    const Column* found = columns_.find(upper, upper.hash());
    return found == nullptr ? 0 : static_cast<std::size_t>(found - columns_.entries().data()) + 1;
}

localText localValueTable::columnName(std::size_t number) const {
    return number == 0 || number > columnsCount() ? localText()
                                                  : columns_.entries()[number - 1].name;
}

std::size_t localValueTable::rowAdd(std::size_t position) {
    const bool appends = position == 0 || position >= rows_.size();
    Row row(columnsCount());
    rows_.insert(appends ? rows_.end() : rows_.begin() + static_cast<std::ptrdiff_t>(position) - 1,
                 std::move(row));
    return rows_.size();
}

void localValueTable::clear() {
    columns_.clear();
    std::vector<Row> gone;
    gone.swap(rows_);
}

bool localValueTable::cellSet(int& status, std::size_t row, std::size_t column,
                              const localValueDescription& value) {
    if (!hasCell(row, column)) {
        status = localErrorTypeOUTOFRANGE;
        return false;
    }
    localValueDescription copy(value);  // it may be this very cell
    cell(row - 1, column - 1).take(copy);
    return true;
}

bool localValueTable::cellGet(int& status, std::size_t row, std::size_t column,
                              localValueDescription*& result) const {
    if (result != nullptr) {
        exit_FAILURE(u"localValueTable::cellGet() result must be NULL!");
    }
    result = localMemoryManager::manager->reserveSlot();
    if (!hasCell(row, column)) {
        status = localErrorTypeOUTOFRANGE;
        return false;
    }
    result->assign(cell(row - 1, column - 1));
    return true;
}

bool localValueTable::sort(std::u16string_view order) {
    if (rows_.empty()) {
        return true;
    }
    if (order.empty()) {
        return false;
    }
    const bool descending = order.front() == u'-';
    if (descending || order.front() == u'+') {
        order.remove_prefix(1);
    }
    const std::size_t column = columnNumber(order);
    if (column == 0) {
        return false;
    }
    if (rows_.size() < 2) {
        return true;
    }
    const std::size_t place = column - 1;
    if (cell(0, place).type == localValueTypeNUMBER) {
        arrange(rows_, sortedRows<double>(rows_.size(), descending, [this, place](std::size_t i) {
                    return cell(i, place).toNumber();
                }));
    } else {
        arrange(rows_,
                sortedRows<localText>(rows_.size(), descending, [this, place](std::size_t i) {
                    return cell(i, place).toString();
                }));
    }
    return true;
}

std::u16string localValueTable::toStringTable() const {
    return u"Таблица значений [" + numberToString(static_cast<double>(rowsCount())) + u":" +
           numberToString(static_cast<double>(columnsCount())) + u"] adr [" + addressText(this) +
           u"] ";
}
