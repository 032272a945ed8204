// The indexes of a table: their names and keys, and their removal.

#include <QSqlRecord>
#include <QVariant>

#include <algorithm>

#include "localDb/localDb.h"
#include "report/localDbReport.h"
#include "sqlite/localDbSqlite.h"
#include "text/localDbText.h"

namespace {

// The column "name" of a statement's rows.
std::vector<std::u16string> namesOf(std::u16string_view connection, const std::u16string& sql,
                                    std::string_view function,
                                    std::source_location place = std::source_location::current()) {
    std::vector<std::u16string> names;
    QSqlQuery query;
    if (!localDb::dbQueryExec(connection, sql, query)) {
        localDbTellFailed(function, sql, place);
        return names;
    }
    const int column = query.record().indexOf(QStringLiteral("name"));
    while (query.next()) {
        names.push_back(query.value(column).toString().toStdU16String());
    }
    return names;
}

}  // namespace

std::vector<std::u16string> localDb::dbtGetIdxNames(std::u16string_view connection,
                                                    std::u16string_view table) {
    std::vector<std::u16string> names =
        namesOf(connection, localDbSqlite::indexNamesSql(table), "dbtGetIdxNames");
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<std::u16string> localDb::idxKeyFieldNamesGet(std::u16string_view connection,
                                                         std::u16string_view index) {
    return namesOf(connection, localDbSqlite::indexKeySql(index), "idxKeyFieldNamesGet");
}

bool localDb::idxDelete(std::u16string_view connection, std::u16string_view index) {
    if (!localDbUsable(connection, "idxDelete", {.before = u"database "})) {
        return false;
    }
    const std::u16string sql = localDbWords(u"drop index ", index, u";");
    QSqlQuery query;
    if (!dbQueryExec(connection, sql, query)) {
        localDbTellFailed("idxDelete", sql);
        return false;
    }
    // A warning, though it went well. Meant.
    localDbTellHtml(localReport::Kind::warning, "idxDelete",
                    localDbWords(u"Индекс ", index, u" удалён! "));
    return true;
}

bool localDb::idxDeleteAfterAnswer(std::u16string_view connection, std::u16string_view index) {
    return localDbAsk(
               u"localDb::dbtDeleteAfterAnswer",
               localDbWords(u"Index \"", index, u"\" will be deleted. <BR/> Are you sure? ")) &&
           idxDelete(connection, index);
}
