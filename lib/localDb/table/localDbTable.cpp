// Whole tables: made, filled from another, dropped, renamed.

#include "localDb/localDb.h"
#include "localInterpretatorUTF8/text/localString.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "report/localDbReport.h"
#include "sqlite/localDbSqlite.h"
#include "text/localDbText.h"

namespace {

using Kind = localReport::Kind;

// The trace and the box of a statement that makes or fills a table.
bool execTraced(std::u16string_view connection, std::u16string_view sql, std::string_view function,
                std::source_location place = std::source_location::current()) {
    writeLine(localDbWords(u"func: ", localString::fromUtf8(function)));
    writeLine(localDbWords(u"sqlCommand= '", sql, u"'"));
    QSqlQuery query;
    if (localDb::dbQueryExec(connection, sql, query)) {
        return true;
    }
    const localDbErrors errors(connection, query, sql);
    writeLine(
        localDbWords(u"dbMain.lastError().databaseText() = '", errors.connectionDatabase, u"'"));
    writeLine(localDbWords(u"dbMain.lastError().driverText() = '", errors.connectionDriver, u"'"));
    writeLine(localDbWords(u"query.lastError().databaseText() = '", errors.queryDatabase, u"'"));
    writeLine(localDbWords(u"query.lastError().driverText() = '", errors.queryDriver, u"'"));
    localDbTellPlain(Kind::critical, function,
                     localDbWords(u" Unable to create a table \n", errors.connectionDatabase, u"\n",
                                  errors.connectionDriver, u"\n", errors.queryDatabase, u"\n",
                                  errors.queryDriver, u"\n"),
                     place);
    return false;
}

// The box about an unknown connection has two wordings.
bool usableBd(std::u16string_view connection, std::string_view function,
              std::source_location place = std::source_location::current()) {
    return localDbUsable(connection, function, {.before = u"БД ", .behind = u"not found!"}, place);
}
bool usableDatabase(std::u16string_view connection, std::string_view function,
                    std::source_location place = std::source_location::current()) {
    return localDbUsable(connection, function, {.before = u"database "}, place);
}

// "Table X not found in Y!" and its kin. Gives whether the table is as it should be.
bool checkTable(std::u16string_view connection, std::u16string_view table, bool shouldExist,
                std::u16string_view complaint, std::string_view function,
                std::source_location place = std::source_location::current()) {
    if (localDb::dbTableExist(connection, table) == shouldExist) {
        return true;
    }
    localDbTellHtml(Kind::warning, function,
                    localDbWords(u"Table ", table, complaint, connection, u"!"), place);
    return false;
}

std::u16string columnList(const localDb::Fields& fields) {
    std::vector<std::u16string> names;
    for (const localDbFieldDescription& field : fields) {
        names.push_back(field.name);
    }
    return localDbJoined(names, u",");
}

}  // namespace

bool localDb::dbTableExist(std::u16string_view connection, std::u16string_view table) {
    // The driver's list does not wait for a locked file; a statement does.
    QSqlQuery query;
    if (!dbQueryExec(connection, localDbSqlite::lookSql(), query)) {
        return false;
    }
    query.finish();
    return localDbConnection::database(connection)
        .tables(QSql::Tables)
        .contains(localDbQString(localDbSqlite::bareName(table)));
}

localDb::Fields localDb::dbtFieldsDescriptionsGet(std::u16string_view connection,
                                                  std::u16string_view table) {
    Fields fields;
    const std::u16string sql = localDbSqlite::fieldsSql(table);
    QSqlQuery query;
    if (!dbQueryExec(connection, sql, query)) {
        localDbTellFailed("dbtFieldsDescriptionsGet", sql);
        return fields;
    }
    const int nameColumn = query.record().indexOf(QStringLiteral("name"));
    const int typeColumn = query.record().indexOf(QStringLiteral("type"));
    while (query.next()) {
        const QString name = query.value(nameColumn).toString();
        if (localDbView(name) == localDbFieldDescription::PrimaryKeyName) {
            fields.emplace_back();
        } else {
            const QString type = query.value(typeColumn).toString();
            fields.emplace_back(localDbView(name), localDbView(type));
        }
    }
    return fields;
}

bool localDb::dbtCreate(std::u16string_view connection, std::u16string_view table,
                        const Fields& fields) {
    if (!usableBd(connection, "dbtCreate") ||
        !checkTable(connection, table, false, u" alredy exist in ", "dbtCreate")) {
        return false;
    }
    std::u16string sql =
        localDbWords(u"CREATE TABLE ", table, u" (", localDbFieldDescription::PrimaryKeyName, u" ",
                     localDbFieldDescription::PrimaryKeyType, localDbSqlite::primaryKeyWords);
    for (const localDbFieldDescription& field : fields) {
        if (field.name == localDbFieldDescription::PrimaryKeyName) {
            continue;
        }
        sql += localDbWords(u", ", field.name, u" ", field.myType);
        if (field.len > 0) {
            sql += localDbWords(u"(", localDbNumber(field.len), u")");
        }
    }
    return execTraced(connection, sql + u");", "dbtCreate");
}

bool localDb::dbtAppendFromDbt(std::u16string_view connection, std::u16string_view source,
                               std::u16string_view target, std::u16string_view columns) {
    constexpr std::string_view function = "dbtAppendFromDbt";
    return usableBd(connection, function) &&
           checkTable(connection, source, true, u" not found in ", function) &&
           checkTable(connection, target, true, u" not found in ", function) &&
           execTraced(connection,
                      localDbWords(u"INSERT INTO ", target, u" (", columns, u" )", u" SELECT ",
                                   columns, u" FROM ", source, u";"),
                      function);
}

bool localDb::dbtCopy(std::u16string_view connection, std::u16string_view source,
                      std::u16string_view target) {
    if (!usableBd(connection, "dbtCopy") ||
        !checkTable(connection, source, true, u" not found in ", "dbtCopy") ||
        !checkTable(connection, target, false, u" alredy exist in ", "dbtCopy")) {
        return false;
    }
    const Fields fields = dbtFieldsDescriptionsGet(connection, source);
    localDbFieldDescription::FieldsDescriptionsCOUT(fields);
    if (!dbtCreate(connection, target, fields)) {
        localDbTellHtml(Kind::warning, "dbtCopy",
                        localDbWords(u"Table ", target, u" in ", connection, u" not created!"));
        return false;
    }
    return dbtAppendFromDbt(connection, source, target, columnList(fields));
}

bool localDb::dbtDelete(std::u16string_view connection, std::u16string_view table) {
    if (!usableDatabase(connection, "dbtDelete") ||
        !checkTable(connection, table, true, u" not exist in ", "dbtDelete")) {
        return false;
    }
    QSqlQuery query;
    if (!dbQueryExec(connection, localDbWords(u"DROP TABLE ", table, u";"), query)) {
        localDbTellHtml(
            Kind::critical, "dbtDelete",
            localDbWords(u" Unable to delete a table  ", table, u" from ", connection, u"!"));
        return false;
    }
    localDbTellHtml(
        Kind::information, "dbtDelete",
        localDbWords(u" Table ", table, u" from ", connection, u" deleted successfully  !"));
    return true;
}

bool localDb::dbtDeleteAfterAnswer(std::u16string_view connection, std::u16string_view table) {
    return localDbAsk(
               u"localDb::dbtDeleteAfterAnswer",
               localDbWords(u"Table \"", table, u"\" will be deleted. <BR/> Are you sure? ")) &&
           dbtDelete(connection, table);
}

bool localDb::dbtRename(std::u16string_view connection, std::u16string_view oldName,
                        std::u16string_view newName) {
    if (!usableDatabase(connection, "dbtRename") ||
        !checkTable(connection, oldName, true, u" not exist in ", "dbtRename") ||
        !checkTable(connection, newName, false, u" already exist in ", "dbtRename")) {
        return false;
    }
    QSqlQuery query;
    if (!dbQueryExec(connection,
                     localDbWords(u"ALTER TABLE ", oldName, u" RENAME TO ", newName, u";"),
                     query)) {
        localDbTellHtml(Kind::critical, "dbtRename",
                        localDbWords(u" Unable to rename a table  ", oldName, u" in ", connection,
                                     u" to  ", newName, u"!"));
        return false;
    }
    localDbTellHtml(Kind::information, "dbtRename",
                    localDbWords(u" Table  ", oldName, u" in ", connection, u" renamed to  ",
                                 newName, u" successfully!"));
    return true;
}
