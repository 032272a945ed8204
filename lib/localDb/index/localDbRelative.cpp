#include "index/localDbRelative.h"

#include <QSqlRecord>

#include <cstdlib>

#include "index/localDbPasses.h"
#include "localDb/localDb.h"
#include "report/localDbReport.h"
#include "text/localDbText.h"

namespace {

constexpr std::string_view reportedAs = "dbtRecordGetRelativelyByKeyAsVectorOfValues";

std::u16string orderOf(std::span<const localDbKeyColumn> columns, localDbDirection direction) {
    std::vector<std::u16string> terms;
    for (const localDbKeyColumn& column : columns) {
        // Two blanks stand between the name and the word.
        terms.push_back(localDbWords(column.term(), u" ",
                                     localDbGoesUp(column, direction) ? u" asc " : u" desc "));
    }
    return localDbWords(u" order by  ", localDbJoined(terms, u", "));
}

}  // namespace

std::u16string localDbMoreConditions(const std::vector<std::u16string>& conditions) {
    std::u16string more;
    for (const std::u16string& condition : conditions) {
        more += localDbWords(u" and (", condition, u") ");
    }
    return more;
}

std::u16string localDbWhere(std::u16string_view condition, std::u16string_view moreConditions) {
    constexpr std::u16string_view andWord = u" and";
    if (condition.empty() && moreConditions.starts_with(andWord)) {
        moreConditions.remove_prefix(andWord.size());
    }
    return condition.empty() && moreConditions.empty()
               ? std::u16string()
               : localDbWords(u" where ", condition, moreConditions);
}

std::vector<QVariant> localDbRelativeRead::at(const localDbKey& key, std::int32_t offset,
                                              bool strict) const {
    const auto direction = offset >= 0 ? localDbDirection::forward : localDbDirection::backward;
    const std::int64_t wanted = std::abs(static_cast<std::int64_t>(offset)) + 1;
    const std::u16string head = localDbWords(u"select ", columns, u" from ", from);
    const std::u16string order = orderOf(keyColumns, direction);
    std::vector<QVariant> farthest;
    std::int64_t found = 0;
    for (const std::u16string& condition :
         localDbPassConditions(keyColumns, key, fixed, direction, localDbTermForm::byName)) {
        const std::u16string sql = localDbWords(head, localDbWhere(condition, conditions), order,
                                                u" limit ", localDbNumber(wanted - found), u";");
        QSqlQuery query;
        if (!localDb::dbQueryExec(connection, sql, query)) {
            localDbTellFailed(reportedAs, sql);
            return {};
        }
        const int count = query.record().count();
        while (found < wanted && query.next()) {
            // The last row read is the farthest; which one that is shows only when they end.
            ++found;
            farthest.clear();
            for (int i = 0; i < count; ++i) {
                farthest.push_back(query.value(i));
            }
        }
        if (found == wanted) {
            break;
        }
    }
    if (strict && found < wanted) {
        farthest.clear();
    }
    return farthest;
}

std::vector<std::u16string> localDb::dbtRecordGetRelativelyByKeyAsVectorOfValues(
    std::u16string_view connection, std::u16string_view from,
    const std::vector<std::u16string>& columns, const std::vector<std::u16string>& keyNames,
    std::size_t fixed, const std::vector<std::u16string>& keyValues, std::int32_t offset,
    bool strict) {
    std::vector<localDbKeyColumn> keyColumns;
    keyColumns.reserve(keyNames.size());
    for (const std::u16string& name : keyNames) {
        keyColumns.push_back({.name = name});
    }
    const localDbRelativeRead read{.connection = connection,
                                   .from = from,
                                   .columns = localDbJoined(columns, u", "),
                                   .keyColumns = keyColumns,
                                   .fixed = fixed};
    std::vector<std::u16string> values;
    for (const QVariant& value :
         read.at(localDbKey(keyValues.begin(), keyValues.end()), offset, strict)) {
        values.push_back(value.toString().toStdU16String());
    }
    return values;
}
