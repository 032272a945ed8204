#include "sqlite/localDbSqlite.h"

#include <QSqlQuery>
#include <QVariant>

#include <algorithm>

#include "localDb/localDb.h"
#include "localInterpretatorUTF8/text/localCharacters.h"
#include "text/localDbText.h"

namespace localDbSqlite {
namespace {

// SQLITE_ERROR and SQLITE_BUSY.
constexpr int wrongStatement = 1;
constexpr int busy = 5;

// The higher bits of a code tell more closely what happened. 0 for a statement that never came to
// SQLite.
int primaryCode(const QSqlError& error) {
    return error.nativeErrorCode().toInt() & 0xFF;
}

// Numbers of columns that stand for the row's own id and for an expression.
constexpr int rowIdColumn = -1;

// Words that cannot stand for a name, in the order of the alphabet.
constexpr std::u16string_view ownWords[] = {
    u"ADD",
    u"ALL",
    u"ALTER",
    u"AND",
    u"AS",
    u"AUTOINCREMENT",
    u"BETWEEN",
    u"CASE",
    u"CAST",
    u"CHECK",
    u"COLLATE",
    u"COMMIT",
    u"CONSTRAINT",
    u"CREATE",
    u"CURRENT_DATE",
    u"CURRENT_TIME",
    u"CURRENT_TIMESTAMP",
    u"DEFAULT",
    u"DEFERRABLE",
    u"DELETE",
    u"DISTINCT",
    u"DROP",
    u"ELSE",
    u"ESCAPE",
    u"EXCEPT",
    u"EXISTS",
    u"FOREIGN",
    u"FROM",
    u"GROUP",
    u"HAVING",
    u"IF",
    u"IN",
    u"INDEX",
    u"INSERT",
    u"INTERSECT",
    u"INTO",
    u"IS",
    u"ISNULL",
    u"JOIN",
    u"LIMIT",
    u"NOT",
    u"NOTHING",
    u"NOTNULL",
    u"NULL",
    u"ON",
    u"OR",
    u"ORDER",
    u"PRIMARY",
    u"RAISE",
    u"REFERENCES",
    u"RETURNING",
    u"SELECT",
    u"SET",
    u"TABLE",
    u"THEN",
    u"TO",
    u"TRANSACTION",
    u"UNION",
    u"UNIQUE",
    u"UPDATE",
    u"USING",
    u"VALUES",
    u"WHEN",
    u"WHERE",
};

// The rule by which a declared type says what becomes of values.
localDbKeyColumn::Affinity affinityOf(const QString& declaredType) {
    using Affinity = localDbKeyColumn::Affinity;
    const QString type = declaredType.toUpper();
    const auto names = [&](const char* word) { return type.contains(QLatin1String(word)); };
    if (names("INT")) {
        return Affinity::number;
    }
    if (names("CHAR") || names("CLOB") || names("TEXT")) {
        return Affinity::text;
    }
    return type.isEmpty() || names("BLOB") || type == QLatin1String("ANY") ? Affinity::none
                                                                           : Affinity::number;
}

QSqlQuery result(std::u16string_view connection, const std::u16string& sql) {
    QSqlQuery query(localDbConnection::database(connection));
    localDb::exec(query, localDbQString(sql));
    return query;
}

bool isPartial(std::u16string_view connection, const std::u16string& table,
               std::u16string_view index) {
    QSqlQuery query = result(connection, localDbWords(u"select partial from pragma_index_list(",
                                                      localDbQuoted(table), u") where name=",
                                                      localDbQuoted(index)));
    return !query.next() || query.value(0).toBool();
}

// The name that the row's own id has in a table: a column may have taken the usual one.
std::u16string rowIdName(std::u16string_view connection, const std::u16string& table) {
    QSqlQuery query =
        result(connection, localDbWords(u"select lower(name) from pragma_table_xinfo(",
                                        localDbQuoted(table), u")"));
    QStringList taken;
    while (query.next()) {
        taken.append(query.value(0).toString());
    }
    for (const char* const name : {"rowid", "_rowid_"}) {
        if (!taken.contains(QLatin1String(name))) {
            return QString::fromLatin1(name).toStdU16String();
        }
    }
    return u"oid";
}

// Whether reading along the index gives the order that the columns say by themselves.
bool isOrderOfIndex(std::u16string_view connection, const std::u16string& table,
                    std::u16string_view index, const std::vector<localDbKeyColumn>& columns,
                    std::size_t keyCount) {
    std::u16string order;
    for (std::size_t i = 0; i < keyCount; ++i) {
        order += localDbWords(i == 0 ? u" " : u", ", word(columns[i].column),
                              columns[i].descending ? u" desc" : u"");
    }
    QSqlQuery query = result(
        connection, localDbWords(u"explain query plan select 1 from ", localDbQuoted(table, u'"'),
                                 u" indexed by ", localDbQuoted(index, u'"'), u" order by", order));
    bool planned = false;
    while (query.next()) {
        planned = true;
        if (query.value(3).toString().contains(QLatin1String("TEMP B-TREE"))) {
            return false;
        }
    }
    return planned;
}

}  // namespace

QString driver() {
    return QStringLiteral("QSQLITE");
}

QString connectOptions() {
    return QStringLiteral("QSQLITE_BUSY_TIMEOUT=0");
}

bool isLocked(const QSqlError& error) {
    return primaryCode(error) == busy;
}

bool isStatementAtFault(const QSqlError& error) {
    return primaryCode(error) <= wrongStatement;
}

std::u16string lookSql() {
    return u"select 1 from sqlite_master limit 1";
}

std::u16string objectsSql() {
    return u"select * from sqlite_master ;";
}

std::u16string fieldsSql(std::u16string_view table) {
    return localDbWords(u"PRAGMA  table_info(", table, u");");
}

std::u16string indexNamesSql(std::u16string_view table) {
    return localDbWords(u"PRAGMA index_list(", table, u") ");
}

std::u16string indexKeySql(std::u16string_view index) {
    return localDbWords(u"PRAGMA index_info(", index, u")");
}

std::u16string renameAloneSql(bool alone) {
    return localDbWords(u"PRAGMA legacy_alter_table=", alone ? u"ON" : u"OFF");
}

std::u16string word(std::u16string_view name) {
    const bool plain = !name.empty() && (name.front() < u'0' || name.front() > u'9') &&
                       std::all_of(name.begin(), name.end(),
                                   [](char16_t unit) { return unit >= 128 || isNameUnit(unit); });
    const bool taken = std::binary_search(std::begin(ownWords), std::end(ownWords), toUpper(name));
    return plain && !taken ? std::u16string(name) : localDbQuoted(name, u'"');
}

std::u16string bareName(std::u16string_view name) {
    if (name.size() < 2 || name.front() != u'"' || name.back() != u'"') {
        return std::u16string(name);
    }
    return localDbQString(name.substr(1, name.size() - 2))
        .replace(QLatin1String("\"\""), QLatin1String("\""))
        .toStdU16String();
}

std::u16string bytesWord(std::u16string_view digits) {
    return localDbWords(u"X'", digits, u"'");
}

QString folded(QString text, std::u16string_view collation) {
    if (collation == u"RTRIM") {
        while (text.endsWith(QLatin1Char(' '))) {
            text.chop(1);
        }
    } else if (collation == u"NOCASE") {
        // Latin letters only.
        for (QChar& letter : text) {
            letter = letter.unicode() < 128 ? letter.toLower() : letter;
        }
    }
    return text;
}

IndexColumns indexColumns(std::u16string_view connection, std::u16string_view table,
                          std::u16string_view index) {
    const std::u16string bareTable = bareName(table);
    if (isPartial(connection, bareTable, index)) {
        return {};
    }
    QSqlQuery query = result(
        connection,
        localDbWords(u"select x.key, x.cid, x.name, x.\"desc\", x.coll, c.\"notnull\", c.type, c.pk"
                     u" from pragma_index_xinfo(",
                     localDbQuoted(index), u") x left join pragma_table_xinfo(",
                     localDbQuoted(bareTable), u") c on c.cid=x.cid order by x.seqno"));
    IndexColumns columns;
    while (query.next()) {
        const bool inKey = query.value(0).toBool();
        const int number = query.value(1).toInt();
        if (number < rowIdColumn) {
            return {};
        }
        localDbKeyColumn column;
        const QString type = query.value(6).toString();
        const bool isRowId = number == rowIdColumn;
        column.column =
            isRowId ? rowIdName(connection, bareTable) : query.value(2).toString().toStdU16String();
        column.name = word(column.column);
        column.numeric = isRowId;
        column.descending = query.value(3).toBool();
        column.collation = query.value(4).toString().toStdU16String();
        column.affinity = isRowId ? localDbKeyColumn::Affinity::number : affinityOf(type);
        const bool standsForRowId =
            query.value(7).toInt() == 1 && type.toUpper() == QLatin1String("INTEGER");
        column.nullable = !isRowId && !standsForRowId && !query.value(5).toBool();
        columns.keyCount += inKey ? 1 : 0;
        columns.columns.push_back(std::move(column));
    }
    if (!isOrderOfIndex(connection, bareTable, index, columns.columns, columns.keyCount)) {
        for (std::size_t i = 0; i < columns.keyCount; ++i) {
            columns.columns[i].collationSaid = true;
        }
    }
    return columns;
}

}  // namespace localDbSqlite
