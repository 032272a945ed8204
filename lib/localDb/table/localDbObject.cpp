// All that a file declares, and what a table loses when it is built anew.

#include <QSqlRecord>
#include <QVariant>

#include <algorithm>

#include "localDb/localDb.h"
#include "report/localDbReport.h"
#include "sqlite/localDbSqlite.h"
#include "text/localDbText.h"

namespace {

// The name that a column has among the new fields; empty when it is gone.
std::u16string newNameOf(const std::u16string& column, const localDb::Fields& fields) {
    const std::u16string& key = localDbFieldDescription::PrimaryKeyName;
    const QString wanted = localDbQString(column);
    for (const localDbFieldDescription& field : fields) {
        const std::u16string source = localDbSqlite::bareName(field.sqlName);
        if (wanted.compare(localDbQString(source), Qt::CaseInsensitive) == 0) {
            return localDbSqlite::bareName(field.name);
        }
    }
    // A table that is built anew has it, be it among the fields or not.
    return wanted.compare(localDbQString(key), Qt::CaseInsensitive) == 0 ? key : std::u16string();
}

bool makes(const std::u16string& sql, const char* what) {
    return localDbQString(sql).simplified().startsWith(QLatin1String(what), Qt::CaseInsensitive);
}

std::u16string indexStart(localDbObject::Keys keys, std::u16string_view index,
                          std::u16string_view table) {
    return localDbWords(keys == localDbObject::Keys::unique ? u"create unique index "
                                                            : u"create index ",
                        index, u" on ", table, u" (");
}

}  // namespace

bool localDb::dbObjectsGet(std::u16string_view connection, std::vector<localDbObject>& objects) {
    objects.clear();
    const std::u16string sql = localDbSqlite::objectsSql();
    QSqlQuery query;
    if (!dbQueryExec(connection, sql, query)) {
        localDbTellFailed("dbObjectsGet", sql);
        return false;
    }
    const QSqlRecord columns = query.record();
    const auto text = [&](const char* column) {
        return query.value(columns.indexOf(QLatin1String(column))).toString().toStdU16String();
    };
    while (query.next()) {
        objects.push_back({.type = text("type"),
                           .name = text("name"),
                           .table = text("tbl_name"),
                           .sql = text("sql")});
    }
    return true;
}

std::u16string localDb::dbObjectStatement(std::u16string_view connection,
                                          const localDbObject& object, const Fields& fields) {
    if (object.sql.empty() || object.type != u"index") {
        return object.sql;
    }
    const localDbSqlite::IndexColumns key =
        localDbSqlite::indexColumns(connection, object.table, object.name);
    std::vector<std::u16string> words;
    bool renamed = false;
    for (std::size_t i = 0; i < key.keyCount; ++i) {
        const localDbKeyColumn& column = key.columns[i];
        const std::u16string newName = newNameOf(column.column, fields);
        if (newName.empty()) {
            return {};
        }
        renamed = renamed || newName != column.column;
        words.push_back(localDbWords(localDbSqlite::word(newName), u" collate ",
                                     localDbSqlite::word(column.collation),
                                     column.descending ? u" desc" : u""));
    }
    // An index on an expression, or on some of the rows, is tried as it was.
    if (!renamed) {
        return object.sql;
    }
    return localDbWords(indexStart(makes(object.sql, "create unique") ? localDbObject::Keys::unique
                                                                      : localDbObject::Keys::any,
                                   localDbSqlite::word(object.name),
                                   localDbSqlite::word(object.table)),
                        localDbJoined(words, u", "), u")");
}

bool localDb::dbObjectMake(std::u16string_view connection, std::u16string_view statement) {
    QSqlQuery query;
    if (dbQueryExec(connection, statement, query)) {
        return true;
    }
    localDbTellFailed("dbObjectMake", statement);
    return false;
}

bool localDb::idxCreate(std::u16string_view connection, std::u16string_view table,
                        std::u16string_view index, const std::vector<std::u16string>& keyNames,
                        localDbObject::Keys keys) {
    return dbObjectMake(connection, localDbWords(indexStart(keys, index, table),
                                                 localDbJoined(keyNames, u", "), u");"));
}
