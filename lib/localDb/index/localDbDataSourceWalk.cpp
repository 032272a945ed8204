// The walk of localDbDataSource200123: the buffer is refilled from a position, and positions are
// found.

#include <QSqlQuery>

#include <algorithm>
#include <span>

#include "index/localDbPasses.h"
#include "index/localDbRelative.h"
#include "localDb/index/localDbDataSource200123.h"
#include "localDb/localDb.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "report/localDbReport.h"
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
    QString first = a.toString();
    QString second = b.toString();
    if (column.collation == u"RTRIM") {
        for (QString* const text : {&first, &second}) {
            while (text->endsWith(QLatin1Char(' '))) {
                text->chop(1);
            }
        }
    } else if (column.collation == u"NOCASE") {
        // Latin letters only.
        for (QString* const text : {&first, &second}) {
            for (QChar& letter : *text) {
                letter = letter.unicode() < 128 ? letter.toLower() : letter;
            }
        }
    }
    return first == second;
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

bool isAtOrAfter(const localDbKey& row, const localDbKey& wanted) {
    return !std::lexicographical_compare(
        row.begin(), row.end(), wanted.begin(), wanted.end(),
        [](const localDbKeyValue& a, const localDbKeyValue& b) { return a.text < b.text; });
}

}  // namespace

// --- The buffer

QString localDbDataSource200123::cell(std::size_t row, std::size_t expression) const {
    if (expression >= sqlExpressions_.size()) {
        return QStringLiteral(" illegal column!");
    }
    return row < dataBuffer_.size()
               ? dataBuffer_[row][dataBuffer_[row].size() - sqlExpressions_.size() + expression]
               : QString();
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
        if (after < 0 && isAtOrAfter(ofRow, key)) {
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
    const bool isAlone =
        first == row && (row + 1 == bufferKeys_.size() || !isSameKey(row, row + 1));
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
        localDbTellFailed("idxSet", sql);
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

localDbDataSource200123::IdxSetResult localDbDataSource200123::idxSet(std::u16string_view name,
                                                                      std::size_t row) {
    const Index* const wanted = indexByName(name);
    if (wanted == nullptr) {
        return {};
    }
    const Index* const before = currentIdx_;
    const localDbKey place = exactKeyOfRow(row);
    const localDbKey record = place.empty() ? place : keyInOtherIndex(*before, place, *wanted);
    currentIdx_ = wanted;
    if (record.empty()) {
        fillFromKeyVal(localDbKey(fixedKeyValues_.begin(), fixedKeyValues_.end()));
        return {.changed = true, .row = dataBuffer_.empty() ? -1 : 0};
    }
    fillFromKeyVal(relativeKey(record, -halfBuffer, false));
    std::ptrdiff_t found = rowOfKey(record);
    const auto next = static_cast<std::size_t>(found + 1);
    if (found >= 0 && next < bufferKeys_.size() && isSameKey(next - 1, next)) {
        // Several rows have the key: the walk goes around the one that was meant.
        const localDbKey exact = read(*before, place, 0, false, *wanted, true);
        if (!exact.empty()) {
            fillFromKeyVal(relativeKey(exact, -halfBuffer, false));
            found = rowOfKey(exact);
        }
    }
    return {.changed = true, .row = found};
}
