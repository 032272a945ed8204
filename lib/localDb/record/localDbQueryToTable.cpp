// The result of a statement as a value table.

#include <QSqlField>

#include "localDb/localDb.h"
#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localInterpretatorUTF8/text/localCharacters.h"
#include "report/localDbReport.h"
#include "text/localDbText.h"

namespace {

// A careless query must not fill the memory of a program. Meant.
constexpr std::size_t rowsAtMost = 100;

void addColumns(localValueTable& table, const QSqlRecord& record) {
    for (int i = 0; i < record.count(); ++i) {
        const std::u16string name = record.fieldName(i).toStdU16String();
        const std::u16string_view trimmed = trimBoth(name);
        table.columnAdd(trimmed.empty() ? localDbWords(u"field", localDbNumber(i + 1))
                                        : std::u16string(trimmed));
    }
}

void addErrors(localValueTable& table, const localDbErrors& errors, std::u16string_view sql) {
    table.columnAdd(u"Type");
    table.columnAdd(u"Text");
    const std::pair<std::u16string_view, std::u16string_view> rows[] = {
        {u"Unable to execute query", u""},
        {u"SQL : ", sql},
        {u"Db databaseText: ", errors.connectionDatabase},
        {u"Db driverText: ", errors.connectionDriver},
        {u"Query databaseText: ", errors.queryDatabase},
        {u"Query  driverText: ", errors.queryDriver},
    };
    for (const auto& [label, text] : rows) {
        const std::size_t row = table.rowAdd() - 1;
        table.cell(row, 0).setVal(label);
        table.cell(row, 1).setVal(text);
    }
}

}  // namespace

bool localDb::queryExecToValueTable(std::u16string_view connection, localValueTable& table,
                                    std::u16string_view sql) {
    table.clear();
    if (!localDbUsable(connection, "queryExecToValueTable",
                       {.title = u"localDb::queryExecToValueTable"}) ||
        !connectionOpen(connection, "queryExecToValueTable")) {
        return false;
    }
    QSqlQuery query(localDbConnection::database(connection));
    if (!exec(query, localDbQString(sql))) {
        const localDbErrors errors(connection, query, sql);
        localDbTellPlain(localReport::Kind::critical, "queryExecToValueTable",
                         localDbWords(u"Unable to execute query \n", u"SQL : '", sql, u"'\n\n",
                                      localDbLabelled(errors)));
        addErrors(table, errors, sql);
        return false;
    }
    while (table.rowsCount() < rowsAtMost && query.next()) {
        if (table.columnsCount() == 0) {
            addColumns(table, query.record());
        }
        const std::size_t row = table.rowAdd() - 1;
        for (std::size_t column = 0; column < table.columnsCount(); ++column) {
            const QString text = query.value(static_cast<int>(column)).toString();
            table.cell(row, column).setVal(localDbView(text));
        }
    }
    return true;
}
