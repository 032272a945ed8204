// A walk through the records of a table: the class DATABASERECORD.
//
// SELECT begins, NEXT goes on, and the fields of the record reached are attributes. The rows are
// read forward only, one at a time, so a walk costs the same memory over ten rows and over
// millions.
#pragma once

#include <QSqlQuery>

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "localDb/script/localDataBaseTable.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"

class localDataBaseRecord final {
public:
    // Live objects.
    static std::int64_t counterStaticTotal;
    static localClassDeclaration* classDeclaration();

    // Shares the table, whose database object must stand.
    explicit localDataBaseRecord(localDataBaseTable* table);
    ~localDataBaseRecord() { --counterStaticTotal; }
    localDataBaseRecord(const localDataBaseRecord&) = delete;
    localDataBaseRecord& operator=(const localDataBaseRecord&) = delete;

    // How many values hold this record.
    std::uint32_t linkCounter = 0;

    const localDataBaseTable& table() const {
        return *static_cast<const localDataBaseTable*>(table_.pointer);
    }

    // Begins to read the records that fit a condition, or all. Gives whether the statement ran.
    // Status 22 when the database object has gone.
    bool select(int& status, std::u16string_view condition);
    // Reads the next record into the variables. False at the end and when nothing was begun. Status
    // 22 when the database object has gone, and when the walk was begun on another thread or on a
    // connection that has been replaced since.
    bool next(int& status);

    // A variable for each field.
    localContextUTF8 context;

    // "Запись таблицы [table] adr [address] ".
    std::u16string toStringRecord() const;

private:
    localValueDescription table_;
    std::optional<QSqlQuery> query_;
    std::u16string queryConnection_;
    // The variables of the columns of the query, in order.
    std::vector<localValueDescription*> columns_;
};
