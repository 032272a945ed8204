// The cells of a record as they are written back into the file.

#include <QMetaType>
#include <QSqlField>
#include <QVariant>

#include <algorithm>

#include "localDb/localDb.h"
#include "report/localDbReport.h"
#include "sqlite/localDbSqlite.h"
#include "statement/localDbStatement.h"
#include "text/localDbText.h"

localDbFieldValue localDb::cellOf(std::u16string_view name, const QVariant& value) {
    localDbFieldValue cell{.name = std::u16string(name), .value = value.toString()};
    switch (value.isNull() ? QMetaType::UnknownType : value.typeId()) {
        case QMetaType::QString:
            cell.type = u"CHAR";
            break;
        case QMetaType::Int:
        case QMetaType::LongLong:
            cell.type = u"INT";
            break;
        case QMetaType::Double:
            cell.type = u"NUME";
            break;
        default:
            cell.type = u"unkn";
    }
    return cell;
}

std::vector<localDbFieldValue> localDb::dbtCellsThatComeBack(std::u16string_view connection,
                                                             std::u16string_view table,
                                                             std::int64_t id,
                                                             const QSqlRecord& record) {
    // The file itself compares each cell with what would be written: in kind and in value.
    std::vector<localDbFieldValue> cells;
    std::vector<std::u16string> comparisons;
    const Fields stored = dbtFieldsDescriptionsGet(connection, table);
    for (int i = 0; i < record.count(); ++i) {
        const std::u16string name = record.fieldName(i).toStdU16String();
        localDbFieldValue cell = cellOf(localDbSqlite::word(name), record.value(i));
        const bool isStored =
            std::any_of(stored.begin(), stored.end(), [&](const localDbFieldDescription& field) {
                return field.getName() == name;
            });
        if (!isStored || cell.type == u"unkn" ||
            !localDbUnfitText(localDbView(cell.value)).empty()) {
            continue;
        }
        const std::u16string written = cell.sqlValue().toStdU16String();
        comparisons.push_back(localDbWords(u"typeof(", cell.name, u")=typeof(", written, u") and ",
                                           cell.name, u" is ", written));
        cells.push_back(std::move(cell));
    }
    QSqlQuery query(localDbConnection::database(connection));
    const bool compared =
        !cells.empty() &&
        exec(query,
             localDbQString(localDbWords(u"select ", localDbJoined(comparisons, u", "), u" from ",
                                         table, u" where id=", localDbNumber(id), u" ;"))) &&
        query.next();
    std::vector<localDbFieldValue> comingBack;
    for (std::size_t i = 0; compared && i < cells.size(); ++i) {
        if (query.value(static_cast<int>(i)).toBool()) {
            comingBack.push_back(std::move(cells[i]));
        }
    }
    return comingBack;
}
