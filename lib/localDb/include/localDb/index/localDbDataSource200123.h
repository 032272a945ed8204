// The rows of a query around a position in an index: what a browse of a table of any size looks at.
//
// A position is always a key, never a row number, so a table of ten million rows costs what one of
// ten does. The buffer holds up to 256 rows in the order of the index in force, and is refilled
// from a position by a chain of prefix queries, each of which the index serves: all key columns
// equal, then all but the last equal and that one greater, and so on.
//
// A key does not always tell one row: where so many rows share one that the walk would stay among
// them for ever, the statements take in the row's own id behind the key, and so do the keys of such
// rows. Values NULL, columns without a type, DESC and other collations follow the index.
//
// It knows no widget: what changing the index means for a cursor comes back as a result.
#pragma once

#include <QString>
#include <QVariant>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "localDb/field/localDbFieldDescription.h"
#include "localDb/index/localDbKey.h"

struct localDbKeyColumn;

class localDbDataSource200123 {
public:
    struct SqlExpression {
        std::u16string sqlExpression = {};
        std::u16string aliasName = {};  // may be empty
    };
    struct Alias {
        std::u16string aliasName = {};  // may be empty for a table alone
        std::u16string dbtName = {};
        std::u16string leftJoinCondition = {};  // of the first table: ignored
    };
    struct Index {
        Index();
        ~Index();
        Index(const Index&) = delete;
        Index& operator=(const Index&) = delete;

        std::u16string name;
        // Into `fields`, in key order. A key column that the table's list lacks is left out.
        std::vector<const localDbFieldDescription*> keyFields;
        // "tov.code"
        std::vector<std::u16string> keyFieldNames;

        // How the columns are compared and ordered: those of the key, and behind them those that
        // tell rows of one key apart.
        std::vector<localDbKeyColumn> columns;
    };
    using Row = std::vector<QString>;

    static constexpr std::uint32_t bufferSize = 256;

    // Reads the table's indexes, puts one in force (an empty name: the first) and fills the buffer
    // from `fixedKeyValues`, the leading key values that every row shown has. The first of the
    // aliases is the main table. Ends the process, after a box, for an unknown connection and for
    // an index that cannot be had.
    localDbDataSource200123(std::u16string_view connection, std::vector<Alias> aliases,
                            std::vector<SqlExpression> sqlExpressions,
                            std::vector<std::u16string> whereConditions,
                            std::u16string_view defaultIdxName,
                            std::vector<std::u16string> fixedKeyValues);
    // The same, but gives null after the box: what a program asked for ends no process.
    static std::unique_ptr<localDbDataSource200123>
    make(std::u16string_view connection, std::vector<Alias> aliases,
         std::vector<SqlExpression> sqlExpressions, std::vector<std::u16string> whereConditions,
         std::u16string_view defaultIdxName, std::vector<std::u16string> fixedKeyValues);
    ~localDbDataSource200123();
    localDbDataSource200123(const localDbDataSource200123&) = delete;
    localDbDataSource200123& operator=(const localDbDataSource200123&) = delete;

    const std::u16string& connection() const { return connection_; }
    const std::vector<Alias>& aliases() const { return aliases_; }
    const std::vector<SqlExpression>& sqlExpressions() const { return sqlExpressions_; }
    const std::vector<localDbFieldDescription>& fields() const { return fields_; }
    const std::vector<std::unique_ptr<Index>>& indexes() const { return indexes_; }
    const Index* currentIdx() const { return currentIdx_; }
    // Null when there is none of that name. Partial indexes and those on expressions are left out.
    const Index* indexByName(std::u16string_view name) const;
    // The number of the expression with this text; the number of expressions when there is none.
    std::size_t expressionNumber(std::u16string_view sqlExpression) const;

    const std::vector<std::u16string>& fixedKeyValues() const { return fixedKeyValues_; }
    void setFixedKeyValues(std::vector<std::u16string> values);

    // --- The buffer: rows from 0

    const std::vector<Row>& dataBuffer() const { return dataBuffer_; }
    // How often it was filled: rows keep their numbers as long as this stays.
    unsigned fillCount() const { return fillCount_; }
    // The value of an expression in a row; " illegal column!" past the last expression, empty past
    // the last row.
    QString cell(std::size_t row, std::size_t expression) const;
    // The same of a copy of a row.
    QString cellOf(const Row& row, std::size_t expression) const;
    // Empty when there is no index in force or no such row.
    localDbKey keyOfRow(std::size_t row) const;
    // The same with what tells the row apart, where others have its key: the walk from there is
    // that of this very row.
    localDbKey exactKeyOfRow(std::size_t row) const;
    // The row that a cursor is put on for a key: the first one of that key; where there is none,
    // the first whose key is at or after it in the order of the index; else -1.
    std::ptrdiff_t rowOfKey(const localDbKey& key) const;

    // --- The walk

    // Reads fields and indexes of the main table anew and puts an index in force. False when none
    // is in force then.
    bool idxInit(std::u16string_view name);

    // Refills the buffer with the rows at and after a position. Beeps.
    void fillFromKeyVal(const localDbKey& key);
    // The same from the first row that has the fixed values.
    void fillFromStart();
    // The key of the row at a distance (0 or less) from a position in the order of the index in
    // force, or of the farthest row when not `strict`; empty when there is none.
    localDbKey relativeKey(const localDbKey& key, std::int32_t offset, bool strict) const;
    // The values that the first row at or after a position of one index has in another one's key.
    localDbKey keyInOtherIndex(const Index& of, const localDbKey& key, const Index& other) const;

    // The key, with what tells the row apart, of the row that stands so far (1 or more) before the
    // last one, or of the first row.
    localDbKey keyBeforeEnd(std::int32_t distance) const;
    // Refills the buffer around the first record at or after a position of an index; the order
    // stays. Gives where it stands in the buffer now, -1: nowhere.
    std::ptrdiff_t fillAroundRecord(const Index& of, const localDbKey& place);

    struct IdxSetResult {
        bool changed = false;    // false: no index of that name, nothing was done
        std::ptrdiff_t row = 0;  // where the record stands in the buffer now, -1: nowhere
    };
    // Puts another index in force and refills the buffer around the record of a row.
    IdxSetResult idxSet(std::u16string_view name, std::size_t row);

    // The row of an id, cells as in the buffer; empty when there is none.
    Row getTmpRowById(std::int64_t id) const;

private:
    struct Shape;
    explicit localDbDataSource200123(Shape shape);

    // Puts the first index in force and fills the buffer. False after the box of a fatal end.
    bool begin(std::u16string_view defaultIdxName);
    void readIndexes();
    bool setCurrent(std::u16string_view name);

    std::u16string fromText() const;
    std::u16string selectList(const std::vector<std::u16string>& keyNames) const;
    std::u16string mainName(std::u16string_view column) const;
    void tellNoKey() const;

    void fill(const localDbKey& key, bool apart);
    void fillAround(const localDbKey& key);
    bool isCrowded() const;
    bool isSameKey(std::size_t row, std::size_t other) const;
    localDbKey read(const Index& of, const localDbKey& key, std::int32_t offset, bool strict,
                    const Index& other, bool apart) const;

    std::u16string connection_;
    std::vector<Row> dataBuffer_;
    unsigned fillCount_ = 0;
    std::vector<std::unique_ptr<Index>> indexes_;
    std::vector<localDbFieldDescription> fields_;
    std::vector<std::u16string> fixedKeyValues_;
    const Index* currentIdx_ = nullptr;
    std::vector<SqlExpression> sqlExpressions_;
    std::vector<Alias> aliases_;
    std::vector<std::u16string> whereConditions_;
    // What the file holds in the key columns of each buffer row, and what tells the row apart.
    std::vector<std::vector<QVariant>> bufferKeys_;
};
