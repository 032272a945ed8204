// All that is done to a data file by SQL, but for the walk along an index
// (localDbDataSource200123).
//
// The operations take the name of a connection (localDbConnection) and work on the calling thread.
// None throws. Each gives false, 0 or an empty result on failure and has then told the person
// through the host; a failed statement costs two boxes: that of dbQueryExec, and one of the
// operation. Names of tables, columns and indexes go into the statement as they are given.
//
// No operation opens a transaction. A file that another process has locked is waited for, 5 seconds
// under the wait cursor.
#pragma once

#include <QSqlQuery>
#include <QSqlRecord>
#include <QString>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "localDb/connection/localDbConnection.h"
#include "localDb/field/localDbFieldDescription.h"
#include "localDb/field/localDbFieldValue.h"
#include "localDb/index/localDbKey.h"
#include "localDb/table/localDbObject.h"

class localValueTable;

class localDb {
public:
    using Fields = std::vector<localDbFieldDescription>;

    virtual ~localDb() = default;

    // --- The data file

    // The full name of the data file: the one that was set, if it exists; else the default name;
    // else what a person chooses in a dialog, where an empty answer keeps the default. The result
    // is set.
    static std::u16string applicationGetDataFullFileName();
    // Sets it: the property "dataFileName" of the application object, or a text that stands for it
    // as long as there is none.
    static void applicationSetDataFullFileName(std::u16string_view fileName);

    // Opens "dbMain" on a file, or on the data file where that does not exist.
    static bool testDbInit(std::u16string_view fileName);
    static bool testDbSqliteInit(std::u16string_view fileName);
    // Opens a connection on a file. A failure shows the box of a failed open, which has the
    // caller's name for a title.
    static bool connectionOpen(std::u16string_view connection, std::u16string_view fileName,
                               std::string_view caller);
    // Opens a connection again on the file chosen for it, if it is not open. A failure shows that
    // box; where no file was ever chosen nothing is told.
    static bool connectionOpen(std::u16string_view connection, std::string_view caller);

    // --- Statements

    // Runs a statement, read forward only. `query` becomes the one that ran it.
    static bool dbQueryExec(std::u16string_view connection, std::u16string_view sql,
                            QSqlQuery& query);
    // Runs a statement on a query made by the caller, waiting for a locked file, and tells nobody.
    // False also for a text that no statement can hold; the query then has no error.
    enum class Reading { forward, anywhere };
    static bool exec(QSqlQuery& query, const QString& sql, Reading reading = Reading::forward);
    // A name of the file as a word of a statement: in double quotes where it would not stand alone.
    static std::u16string nameWord(std::u16string_view name);
    // Empties a value table and fills it with the first 100 rows of a statement, as texts. A failed
    // statement leaves two columns "Type" and "Text" that tell of it. False, with an empty table,
    // when the connection does not open.
    static bool queryExecToValueTable(std::u16string_view connection, localValueTable& table,
                                      std::u16string_view sql);

    // --- Records

    // Right up to the largest 32-bit number.
    static std::int64_t dbtRecordCount(const QString& connection, const QString& table);
    // False, with an empty record, when there is no row of that id.
    static bool dbtRecordGetById(std::u16string_view connection, std::u16string_view table,
                                 std::int64_t id, QSqlRecord& record);
    // Asks first.
    static bool dbtRecordDelete(std::u16string_view connection, std::u16string_view table,
                                std::int64_t id);
    // A field "id" among the fields sets the row's id.
    static bool dbtRecordAppend(std::u16string_view connection, std::u16string_view table,
                                const Fields& fields);
    static bool dbtRecordAppend(std::u16string_view connection, std::u16string_view table,
                                const std::vector<localDbFieldValue>& fields);
    // The row is the one whose key field has the value given. Where no field has that name nothing
    // is changed, and that is a success.
    static bool dbtRecordUpdate(std::u16string_view connection, std::u16string_view table,
                                const Fields& fields, std::u16string_view keyFieldName);
    static bool d1btRecordUpdate(std::u16string_view connection, std::u16string_view table,
                                 const std::vector<localDbFieldValue>& fields,
                                 std::u16string_view keyFieldName);
    // A value as a cell: its type is "CHAR", "INT" or "NUME" after what it is itself, "unkn" for
    // NULL and bytes.
    static localDbFieldValue cellOf(std::u16string_view name, const QVariant& value);
    // Those cells of a record just read that d1btRecordUpdate writes back as what they are, and no
    // other: NULL, bytes, letters that a statement or the file's encoding cannot hold, and columns
    // that the file computes are left out. Names are words of a statement.
    static std::vector<localDbFieldValue> dbtCellsThatComeBack(std::u16string_view connection,
                                                               std::u16string_view table,
                                                               std::int64_t id,
                                                               const QSqlRecord& record);
    // Empty when nothing was found; a failed statement is not reported.
    static std::u16string dbtFieldGetMaxVal(std::u16string_view connection,
                                            std::u16string_view table, std::u16string_view field);

    // --- Tables and all other objects

    // All that the file declares, in its own order. False after the two boxes of a failed
    // statement.
    static bool dbObjectsGet(std::u16string_view connection, std::vector<localDbObject>& objects);
    // Compares letter for letter; a name may stand in double quotes.
    static bool dbTableExist(std::u16string_view connection, std::u16string_view table);
    static Fields dbtFieldsDescriptionsGet(std::u16string_view connection,
                                           std::u16string_view table);
    // Decimals are not declared.
    static bool dbtCreate(std::u16string_view connection, std::u16string_view table,
                          const Fields& fields);
    static bool dbtAppendFromDbt(std::u16string_view connection, std::u16string_view source,
                                 std::u16string_view target, std::u16string_view columns);
    static bool dbtCopy(std::u16string_view connection, std::u16string_view source,
                        std::u16string_view target);
    // Changes the structure by building a new table beside the old one and giving it the old name:
    // each new column takes the values of the column that its sqlName names. Indexes are lost. The
    // new table is first called `stem` and a number.
    static bool dbtAlter(std::u16string_view connection, std::u16string_view table,
                         const Fields& newFields, std::u16string_view stem = u"tmp");
    static bool dbtDelete(std::u16string_view connection, std::u16string_view table);
    static bool dbtDeleteAfterAnswer(std::u16string_view connection, std::u16string_view table);
    static bool dbtRename(std::u16string_view connection, std::u16string_view oldName,
                          std::u16string_view newName);

    // --- Indexes

    // Sorted ascending.
    static std::vector<std::u16string> dbtGetIdxNames(std::u16string_view connection,
                                                      std::u16string_view table);
    // The key columns in key order.
    static std::vector<std::u16string> idxKeyFieldNamesGet(std::u16string_view connection,
                                                           std::u16string_view index);
    // Tells of a failure only.
    static bool idxCreate(std::u16string_view connection, std::u16string_view table,
                          std::u16string_view index, const std::vector<std::u16string>& keyNames,
                          localDbObject::Keys keys);
    // The statement that makes an index or trigger of a table anew when the table has these fields;
    // key columns that were renamed have their new names in it. Empty for an index that belongs to
    // the table's own declaration, and for one of whose key columns is gone.
    static std::u16string dbObjectStatement(std::u16string_view connection,
                                            const localDbObject& object, const Fields& fields);
    static bool dbObjectMake(std::u16string_view connection, std::u16string_view statement);
    static bool idxDelete(std::u16string_view connection, std::u16string_view index);
    static bool idxDeleteAfterAnswer(std::u16string_view connection, std::u16string_view index);

    // The columns of the row that stands `offset` rows (0 or less: no statement walks forward) from
    // a position in the order of the key names, or of the farthest row there is when not `strict`.
    // The position is given by the values of some first key columns, and is left alone by the first
    // `fixed` of them: the row found has these values. The row at the position is at distance 0.
    // Empty when there is no row.
    static std::vector<std::u16string> dbtRecordGetRelativelyByKeyAsVectorOfValues(
        std::u16string_view connection, std::u16string_view from,
        const std::vector<std::u16string>& columns, const std::vector<std::u16string>& keyNames,
        std::size_t fixed, const std::vector<std::u16string>& keyValues, std::int32_t offset,
        bool strict);
};
