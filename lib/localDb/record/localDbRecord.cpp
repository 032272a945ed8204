// Single records of a table, and what is asked about all of them.

#include <QDateTime>
#include <QVariant>

#include "localDb/localDb.h"
#include "localInterpretatorUTF8/text/localString.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "report/localDbReport.h"
#include "text/localDbText.h"

namespace {

// The second box of a statement about records: the first line differs, the stray brackets belong to
// it. Meant.
std::u16string statementBlock(std::u16string_view firstLine, const localDbErrors& errors,
                              std::u16string_view sql) {
    return localDbWords(firstLine, localDbLabelled(errors), u")", u"\n)", u"SQL : ", sql, u"\n)");
}

struct BlockWords {
    std::u16string_view title;
    std::string_view function;
    std::u16string_view firstLine;
};

void tellBlock(const BlockWords& words, const localDbErrors& errors, std::u16string_view sql,
               std::source_location place = std::source_location::current()) {
    localDbTell(localReport::Kind::critical, words.title,
                localDbWords(localDbPlainLocation(words.function, place),
                             statementBlock(words.firstLine, errors, sql)));
}

bool usable(std::u16string_view connection, const BlockWords& words) {
    return localDbUsable(connection, words.function, {.title = words.title});
}

// The narrow value of a field may have lost a letter; then nothing is written.
std::u16string brokenValueText(const localDb::Fields& fields) {
    for (const localDbFieldDescription& field : fields) {
        if (!field.isValueWhole()) {
            return localDbWords(u"The value of ", field.name,
                                u" has a letter that it cannot hold.");
        }
    }
    return {};
}
std::u16string brokenValueText(const std::vector<localDbFieldValue>&) {
    return {};
}

std::u16string sqlValueOf(const localDbFieldDescription& field) {
    return field.sqlValue();
}
std::u16string sqlValueOf(const localDbFieldValue& cell) {
    return cell.sqlValue().toStdU16String();
}

template <typename Fields>
bool write(std::u16string_view connection, std::u16string_view sql, const Fields& fields,
           const BlockWords& words) {
    if (std::u16string broken = brokenValueText(fields); !broken.empty()) {
        tellBlock(words, localDbErrors(std::move(broken)), sql);
        return false;
    }
    QSqlQuery query;
    if (localDb::dbQueryExec(connection, sql, query)) {
        return true;
    }
    tellBlock(words, localDbErrors(connection, query, sql), sql);
    return false;
}

template <typename Fields>
std::u16string insertSql(std::u16string_view table, const Fields& fields) {
    std::vector<std::u16string> columns;
    std::vector<std::u16string> values;
    for (const auto& field : fields) {
        columns.push_back(field.name);
        values.push_back(sqlValueOf(field));
    }
    return localDbWords(u"INSERT INTO ", table, u" (", localDbJoined(columns, u","), u") VALUES (",
                        localDbJoined(values, u","), u");");
}

template <typename Fields>
bool update(std::u16string_view connection, std::u16string_view table, const Fields& fields,
            std::u16string_view keyFieldName, const BlockWords& words) {
    if (!usable(connection, words)) {
        return false;
    }
    // Where no field has the key's name, no row is touched.
    std::u16string condition = u" 0=1";
    std::vector<std::u16string> assignments;
    for (const auto& field : fields) {
        std::u16string pair = localDbWords(field.name, u"=", sqlValueOf(field));
        if (field.name == keyFieldName) {
            condition = std::move(pair);
        } else {
            assignments.push_back(std::move(pair));
        }
    }
    return write(connection,
                 localDbWords(u"UPDATE ", table, u" SET ", localDbJoined(assignments, u","),
                              u" WHERE ", condition, u";"),
                 fields, words);
}

}  // namespace

std::int64_t localDb::dbtRecordCount(const QString& connection, const QString& table) {
    // The first line is that of an update. Meant.
    constexpr BlockWords words{u"localDb::dbtRecordCount", "dbtRecordCount",
                               u" Unable to UPDATE a table \n"};
    const std::u16string_view name = localDbView(connection);
    if (!usable(name, words)) {
        return 0;
    }
    const std::u16string sql = localDbWords(u"SELECT COUNT (*) FROM ", localDbView(table), u" ;");
    QSqlQuery query;
    if (!dbQueryExec(name, sql, query)) {
        tellBlock(words, localDbErrors(name, query, sql), sql);
        return 0;
    }
    // A 32-bit number. Meant.
    return query.next() ? query.value(0).toInt() : 0;
}

bool localDb::dbtRecordGetById(std::u16string_view connection, std::u16string_view table,
                               std::int64_t id, QSqlRecord& record) {
    record = QSqlRecord();
    if (!localDbUsable(connection, "dbtRecordGetById",
                       {.title = u"localDb::dbTableRecordGetById"})) {
        return false;
    }
    const std::u16string sql =
        localDbWords(u"select * from ", table, u" where id=", localDbNumber(id), u" ;");
    writeLine(localDbWords(
        u"SqlCommand=[", sql, u"] ",
        localDbView(QDateTime::currentDateTime().toString(QStringLiteral("dd.MM.yyyy HH:mm:ss"))),
        u" func: dbtRecordGetById"));
    QSqlQuery query;
    if (!dbQueryExec(connection, sql, query)) {
        localDbTellFailed("dbtRecordGetById", sql);
        return false;
    }
    if (!query.next()) {
        return false;
    }
    record = query.record();
    return true;
}

bool localDb::dbtRecordDelete(std::u16string_view connection, std::u16string_view table,
                              std::int64_t id) {
    if (!localDbUsable(connection, "dbtRecordDelete",
                       {.title = u"localDb::dbTableRecordDelete() "})) {
        return false;
    }
    if (!localDbAsk(u"localDb::dbtRecordDelete()",
                    u"Record will be deleted. <BR/> Are you sure? ")) {
        return false;
    }
    const std::u16string sql =
        localDbWords(u"delete from ", table, u" where id=", localDbNumber(id), u" ;");
    QSqlQuery query;
    if (dbQueryExec(connection, sql, query)) {
        return true;
    }
    // Without a title. Meant.
    localDbTell(localReport::Kind::critical, u"",
                localDbWords(localDbPlainLocation("dbtRecordDelete"),
                             u" Unable to delete record from table \n",
                             localDbErrors(connection, query, sql).connectionDatabase));
    return false;
}

bool localDb::dbtRecordAppend(std::u16string_view connection, std::u16string_view table,
                              const Fields& fields) {
    constexpr BlockWords words{u"localDb::dbtRecordAppend", "dbtRecordAppend",
                               u" Unable to append record \n"};
    if (!usable(connection, words)) {
        return false;
    }
    const std::u16string sql = insertSql(table, fields);
    if (write(connection, sql, fields, words)) {
        return true;
    }
    writeLine(localDbWords(localDbPlainLocation(words.function), u"ERROR!!! ", sql));
    return false;
}

bool localDb::dbtRecordAppend(std::u16string_view connection, std::u16string_view table,
                              const std::vector<localDbFieldValue>& fields) {
    // The first line is that of a table made. Meant.
    constexpr BlockWords words{u"localDb::dbtRecordAppend", "dbtRecordAppend",
                               u" Unable to create a table \n"};
    return usable(connection, words) && write(connection, insertSql(table, fields), fields, words);
}

bool localDb::dbtRecordUpdate(std::u16string_view connection, std::u16string_view table,
                              const Fields& fields, std::u16string_view keyFieldName) {
    return update(connection, table, fields, keyFieldName,
                  {u"dbtRecordUpdate", "dbtRecordUpdate", u" Unable to UPDATE a table \n"});
}

bool localDb::d1btRecordUpdate(std::u16string_view connection, std::u16string_view table,
                               const std::vector<localDbFieldValue>& fields,
                               std::u16string_view keyFieldName) {
    return update(connection, table, fields, keyFieldName,
                  {u"d1btRecordUpdate", "d1btRecordUpdate", u" Unable to UPDATE a table \n"});
}

std::u16string localDb::dbtFieldGetMaxVal(std::u16string_view connection, std::u16string_view table,
                                          std::u16string_view field) {
    if (!localDbUsable(connection, "dbtFieldGetMaxVal", {.title = u"localDb::dbtFieldGetMaxVal"})) {
        return {};
    }
    if (!localDbConnection::open(connection)) {
        return {};
    }
    const std::u16string expression = localDbWords(u"MAX(", field, u")");
    QSqlQuery query(localDbConnection::database(connection));
    exec(query, localDbQString(localDbWords(u"select ", expression, u" from ", table, u" ;")));
    if (!query.next()) {
        return {};
    }
    const int column = query.record().indexOf(localDbQString(expression));
    return column < 0 ? std::u16string() : query.value(column).toString().toStdU16String();
}
