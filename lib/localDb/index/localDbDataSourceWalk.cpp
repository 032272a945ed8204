// The walk of localDbDataSource200123: the buffer is refilled from a position, and positions are
// found.

#include <QSqlQuery>

#include <algorithm>
#include <compare>
#include <span>

#include "index/localDbPasses.h"
#include "index/localDbRelative.h"
#include "localDb/index/localDbDataSource200123.h"
#include "localDb/localDb.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "report/localDbReport.h"
#include "sqlite/localDbSqlite.h"
#include "text/localDbText.h"

namespace {

using Index = localDbDataSource200123::Index;

constexpr std::int32_t halfBuffer = localDbDataSource200123::bufferSize / 2;

// From a buffer that shows so many rows of one key, the stated statements lead to the same buffer
// again: a screen holds at most half of the buffer.
constexpr std::size_t crowd = localDbDataSource200123::bufferSize / 2;

std::span<const localDbKeyColumn> columnsOf(const Index& index, bool apart) {
    return std::span(index.columns)
        .first(apart ? index.columns.size() : index.keyFieldNames.size());
}

// Whether a key holds what tells rows of one key apart.
bool tellsApart(const Index& index, const localDbKey& key) {
    return key.size() > index.keyFieldNames.size() &&
           index.columns.size() > index.keyFieldNames.size();
}

std::vector<std::u16string> namesOf(std::span<const localDbKeyColumn> columns) {
    std::vector<std::u16string> names;
    for (const localDbKeyColumn& column : columns) {
        names.push_back(column.name);
    }
    return names;
}

std::u16string orderOf(std::span<const localDbKeyColumn> columns) {
    std::vector<std::u16string> terms;
    for (const localDbKeyColumn& column : columns) {
        terms.push_back(column.term() + (column.descending ? u" desc" : u""));
    }
    return localDbWords(u" order by  ", localDbJoined(terms, u", "));
}

localDbKeyValue keyValueOf(const QVariant& value) {
    using Kind = localDbKeyValue::Kind;
    if (value.isNull()) {
        return {u"", Kind::null};
    }
    if (value.typeId() == QMetaType::QByteArray) {
        return {QString::fromLatin1(value.toByteArray().toHex()).toStdU16String(), Kind::bytes};
    }
    return {value.toString().toStdU16String(),
            value.typeId() == QMetaType::QString ? Kind::text : Kind::number};
}

localDbKey keyOf(const std::vector<QVariant>& values) {
    localDbKey key;
    for (const QVariant& value : values) {
        key.push_back(keyValueOf(value));
    }
    return key;
}

// Whether an index holds two values for the same.
bool isSame(const QVariant& a, const QVariant& b, const localDbKeyColumn& column) {
    if (a.typeId() != QMetaType::QString || b.typeId() != QMetaType::QString) {
        return a.isNull() == b.isNull() && a == b;
    }
    return localDbSqlite::folded(a.toString(), column.collation) ==
           localDbSqlite::folded(b.toString(), column.collation);
}

bool hasValues(const localDbKey& row, const localDbKey& wanted) {
    return wanted.size() <= row.size() &&
           std::equal(wanted.begin(), wanted.end(), row.begin(),
                      [](const localDbKeyValue& a, const localDbKeyValue& b) {
                          using Kind = localDbKeyValue::Kind;
                          return a.text == b.text &&
                                 (a.kind == Kind::null) == (b.kind == Kind::null);
                      });
}

// How an index ranges what it holds, lowest first.
enum class Rank { null, number, text, bytes };

Rank rankOf(const localDbKeyValue& value, const localDbKeyColumn& column) {
    using Kind = localDbKeyValue::Kind;
    switch (value.kind) {
        case Kind::null:
            return Rank::null;
        case Kind::number:
            return Rank::number;
        case Kind::bytes:
            return Rank::bytes;
        case Kind::text:
            return Rank::text;
        case Kind::given:
            break;
    }
    bool isNumber = false;
    localDbQString(value.text).toDouble(&isNumber);
    return isNumber && column.affinity != localDbKeyColumn::Affinity::text ? Rank::number
                                                                           : Rank::text;
}

std::strong_ordering numberOrder(const QString& a, const QString& b) {
    bool firstIsWhole = false;
    bool secondIsWhole = false;
    const qint64 first = a.toLongLong(&firstIsWhole);
    const qint64 second = b.toLongLong(&secondIsWhole);
    if (firstIsWhole && secondIsWhole) {
        return first <=> second;
    }
    const double left = a.toDouble();
    const double right = b.toDouble();
    return left < right   ? std::strong_ordering::less
           : left > right ? std::strong_ordering::greater
                          : std::strong_ordering::equal;
}

std::strong_ordering valueOrder(const localDbKeyValue& a, const localDbKeyValue& b,
                                const localDbKeyColumn& column) {
    const Rank rank = rankOf(a, column);
    if (const auto order = rank <=> rankOf(b, column); order != 0) {
        return order;
    }
    const QString first = localDbQString(a.text);
    const QString second = localDbQString(b.text);
    return rank == Rank::number
               ? numberOrder(first, second)
               : localDbSqlite::folded(first, column.collation)
                         .compare(localDbSqlite::folded(second, column.collation)) <=> 0;
}

// Whether a row stands at or after a position in the order of the columns.
bool isAtOrAfter(const localDbKey& row, const localDbKey& wanted,
                 const std::vector<localDbKeyColumn>& columns) {
    const std::size_t count = std::min({row.size(), wanted.size(), columns.size()});
    for (std::size_t i = 0; i < count; ++i) {
        const auto order = valueOrder(row[i], wanted[i], columns[i]);
        if (order != 0) {
            return (order > 0) != columns[i].descending;
        }
    }
    return true;
}

}  // namespace

// --- The buffer

QString localDbDataSource200123::cellOf(const Row& row, std::size_t expression) const {
    if (expression >= sqlExpressions_.size()) {
        return QStringLiteral(" illegal column!");
    }
    return row.size() < sqlExpressions_.size()
               ? QString()
               : row[row.size() - sqlExpressions_.size() + expression];
}

QString localDbDataSource200123::cell(std::size_t row, std::size_t expression) const {
    static const Row none;
    return cellOf(row < dataBuffer_.size() ? dataBuffer_[row] : none, expression);
}

localDbKey localDbDataSource200123::keyOfRow(std::size_t row) const {
    return currentIdx_ == nullptr || row >= bufferKeys_.size() ? localDbKey()
                                                               : keyOf(bufferKeys_[row]);
}

std::ptrdiff_t localDbDataSource200123::rowOfKey(const localDbKey& key) const {
    std::ptrdiff_t after = -1;
    for (std::size_t row = 0; row < bufferKeys_.size(); ++row) {
        const localDbKey ofRow = keyOf(bufferKeys_[row]);
        if (hasValues(ofRow, key)) {
            return static_cast<std::ptrdiff_t>(row);
        }
        if (after < 0 && isAtOrAfter(ofRow, key, currentIdx_->columns)) {
            after = static_cast<std::ptrdiff_t>(row);
        }
    }
    return after;
}

bool localDbDataSource200123::isSameKey(std::size_t row, std::size_t other) const {
    for (std::size_t i = currentIdx_->keyFieldNames.size(); i-- > 0;) {
        if (!isSame(bufferKeys_[row][i], bufferKeys_[other][i], currentIdx_->columns[i])) {
            return false;
        }
    }
    return true;
}

bool localDbDataSource200123::isCrowded() const {
    for (std::size_t last = crowd - 1; last < bufferKeys_.size(); ++last) {
        if (isSameKey(last - (crowd - 1), last)) {
            return true;
        }
    }
    return false;
}

// --- The refill

void localDbDataSource200123::tellNoKey() const {
    const std::u16string_view table = aliases_.empty() ? u"" : aliases_.front().dbtName.c_str();
    localDbTellHtml(
        localReport::Kind::critical, "fillFromKeyVal",
        localDbWords(u"database: ", connection_.empty() ? u"unkbown" : connection_.c_str(),
                     u" table: ", table.empty() ? u"unkbown" : table, u" <BR/><BR/>",
                     u" Для данного виджета (таблицы) не задано ни одного индексного поля.  "
                     u"<BR/><BR/>",
                     u" Информация отображаться не будет.  <BR/><BR/>", u"<BR/>"));
}

void localDbDataSource200123::fillFromKeyVal(const localDbKey& key) {
    localHost::current().beep();
    if (currentIdx_ == nullptr || currentIdx_->keyFieldNames.empty()) {
        tellNoKey();
        return;
    }
    const bool apart = tellsApart(*currentIdx_, key);
    fill(key, apart);
    const bool canTellApart = currentIdx_->columns.size() > currentIdx_->keyFieldNames.size();
    if (!apart && canTellApart && isCrowded()) {
        fill(key, true);
    }
}

void localDbDataSource200123::fillFromStart() {
    fillFromKeyVal(localDbKey(fixedKeyValues_.begin(), fixedKeyValues_.end()));
}

// Where nothing stands before the position, it is the start.
void localDbDataSource200123::fillAround(const localDbKey& key) {
    const localDbKey start = relativeKey(key, -halfBuffer, false);
    fillFromKeyVal(start.empty() ? key : start);
}

void localDbDataSource200123::fill(const localDbKey& key, bool apart) {
    const std::span<const localDbKeyColumn> columns = columnsOf(*currentIdx_, apart);
    const std::size_t keyCount = currentIdx_->keyFieldNames.size();
    const std::size_t cells = keyCount + sqlExpressions_.size();
    std::u16string list = selectList(currentIdx_->keyFieldNames);
    for (const localDbKeyColumn& column : columns.subspan(keyCount)) {
        list += localDbWords(u",", column.name);
    }
    const std::u16string head = localDbWords(u"select ", list, u" from ", fromText());
    const std::u16string tail =
        localDbWords(orderOf(columns), u" limit ", localDbNumber(bufferSize), u";");
    const std::u16string more = localDbMoreConditions(whereConditions_);

    ++fillCount_;
    dataBuffer_.clear();
    bufferKeys_.clear();
    for (const std::u16string& condition :
         localDbPassConditions(columns, key, fixedKeyValues_.size(), localDbDirection::forward,
                               localDbTermForm::byField)) {
        const std::u16string sql = localDbWords(head, localDbWhere(condition, more), tail);
        QSqlQuery query;
        if (!localDb::dbQueryExec(connection_, sql, query)) {
            localDbTellFailed("fillFromKeyVal", sql);
            continue;
        }
        while (dataBuffer_.size() < bufferSize && query.next()) {
            Row& row = dataBuffer_.emplace_back();
            std::vector<QVariant>& keys = bufferKeys_.emplace_back();
            row.reserve(cells);
            keys.reserve(columns.size());
            for (std::size_t i = 0; i < keyCount; ++i) {
                keys.push_back(query.value(static_cast<int>(i)));
                row.push_back(keys.back().toString());
            }
            for (std::size_t i = keyCount; i < cells; ++i) {
                row.push_back(query.value(static_cast<int>(i)).toString());
            }
            for (std::size_t i = keyCount; i < columns.size(); ++i) {
                keys.push_back(query.value(static_cast<int>(cells + i - keyCount)));
            }
        }
        if (dataBuffer_.size() == bufferSize) {
            break;
        }
    }
}

// --- Positions

localDbKey localDbDataSource200123::read(const Index& of, const localDbKey& key,
                                         std::int32_t offset, bool strict, const Index& other,
                                         bool apart) const {
    const std::u16string from = fromText();
    const localDbRelativeRead read{.connection = connection_,
                                   .from = from,
                                   .columns =
                                       localDbJoined(namesOf(columnsOf(other, apart)), u", "),
                                   .keyColumns = columnsOf(of, tellsApart(of, key)),
                                   .fixed = fixedKeyValues_.size(),
                                   .conditions = localDbMoreConditions(whereConditions_)};
    return keyOf(read.at(key, offset, strict));
}

localDbKey localDbDataSource200123::relativeKey(const localDbKey& key, std::int32_t offset,
                                                bool strict) const {
    if (currentIdx_ == nullptr) {
        return {};
    }
    return read(*currentIdx_, key, offset, strict, *currentIdx_, tellsApart(*currentIdx_, key));
}

localDbKey localDbDataSource200123::keyBeforeEnd(std::int32_t distance) const {
    if (currentIdx_ == nullptr) {
        return {};
    }
    const std::u16string from = fromText();
    const std::span<const localDbKeyColumn> columns = columnsOf(*currentIdx_, true);
    const localDbRelativeRead read{.connection = connection_,
                                   .from = from,
                                   .columns = localDbJoined(namesOf(columns), u", "),
                                   .keyColumns = columns,
                                   .fixed = fixedKeyValues_.size(),
                                   .conditions = localDbMoreConditions(whereConditions_)};
    return keyOf(
        read.at(localDbKey(fixedKeyValues_.begin(), fixedKeyValues_.end()), -distance, false));
}

localDbKey localDbDataSource200123::keyInOtherIndex(const Index& of, const localDbKey& key,
                                                    const Index& other) const {
    return read(of, key, 0, false, other, false);
}

localDbKey localDbDataSource200123::exactKeyOfRow(std::size_t row) const {
    localDbKey key = keyOfRow(row);
    if (key.empty() || tellsApart(*currentIdx_, key)) {
        return key;
    }
    std::size_t first = row;
    while (first > 0 && isSameKey(first - 1, row)) {
        --first;
    }
    // Behind a full buffer others of the key may follow.
    const std::size_t next = row + 1;
    const bool isLast = next < bufferKeys_.size() ? !isSameKey(row, next) : next < bufferSize;
    const bool isAlone = first == row && isLast;
    const std::span<const localDbKeyColumn> columns = columnsOf(*currentIdx_, true);
    if (isAlone || columns.size() == key.size()) {
        return key;
    }
    // A buffer without what tells rows apart begins with the first row of its key, so the row's
    // place among those of its key is known.
    const std::u16string sameKey = localDbPassConditions(columns, key, 0, localDbDirection::forward,
                                                         localDbTermForm::byField)[0];
    const std::u16string sql = localDbWords(
        u"select ", localDbJoined(namesOf(columns), u", "), u" from ", fromText(),
        localDbWhere(sameKey, localDbMoreConditions(whereConditions_)), orderOf(columns),
        u" limit 1 offset ", localDbNumber(static_cast<qint64>(row - first)), u";");
    QSqlQuery query;
    if (!localDb::dbQueryExec(connection_, sql, query)) {
        localDbTellFailed("exactKeyOfRow", sql);
        return key;
    }
    if (query.next()) {
        key.clear();
        for (std::size_t i = 0; i < columns.size(); ++i) {
            key.push_back(keyValueOf(query.value(static_cast<int>(i))));
        }
    }
    return key;
}

std::ptrdiff_t localDbDataSource200123::fillAroundRecord(const Index& of, const localDbKey& place) {
    const bool isOrder = &of == currentIdx_;
    const localDbKey record =
        isOrder || place.empty() ? place : keyInOtherIndex(of, place, *currentIdx_);
    if (record.empty()) {
        fillFromStart();
        return dataBuffer_.empty() ? -1 : 0;
    }
    fillAround(record);
    std::ptrdiff_t found = rowOfKey(record);
    const auto next = static_cast<std::size_t>(found + 1);
    if (!isOrder && found >= 0 && next < bufferKeys_.size() && isSameKey(next - 1, next)) {
        // Several rows have the key: the walk goes around the one that was meant.
        const localDbKey exact = read(of, place, 0, false, *currentIdx_, true);
        if (!exact.empty()) {
            fillAround(exact);
            found = rowOfKey(exact);
        }
    }
    return found;
}

localDbDataSource200123::IdxSetResult localDbDataSource200123::idxSet(std::u16string_view name,
                                                                      std::size_t row) {
    const Index* const wanted = indexByName(name);
    if (wanted == nullptr) {
        return {};
    }
    const Index* const before = currentIdx_;
    const localDbKey place = exactKeyOfRow(row);
    currentIdx_ = wanted;
    return {.changed = true, .row = fillAroundRecord(*before, place)};
}
