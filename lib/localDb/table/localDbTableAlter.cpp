// The structure of a table is changed by building it anew.

#include "localDb/localDb.h"
#include "localInterpretatorUTF8/text/localCharacters.h"
#include "report/localDbReport.h"
#include "sqlite/localDbSqlite.h"
#include "text/localDbText.h"

namespace {

// The stem with the first number behind it that gives the name of no table.
std::u16string freeTableName(std::u16string_view connection, std::u16string_view stem) {
    std::u16string name;
    qint64 number = 0;
    do {
        ++number;
        name = trimBoth(localDbWords(stem, localDbNumber(number)));
    } while (localDb::dbTableExist(connection, name));
    return name;
}

bool renameAlone(std::u16string_view connection, std::u16string_view oldName,
                 std::u16string_view newName) {
    QSqlQuery query(localDbConnection::database(connection));
    localDb::exec(query, localDbQString(localDbSqlite::renameAloneSql(true)));
    const bool done = localDb::dbtRename(connection, oldName, newName);
    localDb::exec(query, localDbQString(localDbSqlite::renameAloneSql(false)));
    return done;
}

}  // namespace

bool localDb::dbtAlter(std::u16string_view connection, std::u16string_view table,
                       const Fields& newFields, std::u16string_view stem) {
    // No transaction stands around the steps: whatever ends them, the rows are in the table of the
    // old name or in that of the free one.
    const std::u16string rebuilt = freeTableName(connection, stem);
    if (!dbtCreate(connection, rebuilt, newFields)) {
        return false;
    }
    std::vector<std::u16string> targets;
    std::vector<std::u16string> sources;
    for (const localDbFieldDescription& field : newFields) {
        targets.push_back(field.name);
        sources.push_back(field.sqlName);
    }
    const std::u16string sql =
        localDbWords(u"INSERT INTO  ", rebuilt, u"(", localDbJoined(targets, u", "), u")",
                     u" SELECT ", localDbJoined(sources, u", "), u" FROM ", table, u";");
    localDbTellHtml(localReport::Kind::about, "dbtAlter", sql);
    QSqlQuery query;
    if (!dbQueryExec(connection, sql, query)) {
        localDbTellFailed("dbtAlter", sql);
        return false;
    }
    return dbtDelete(connection, table) && renameAlone(connection, rebuilt, table);
}
