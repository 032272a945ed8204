#include "localDb/script/localDataBaseRecord.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlRecord>

#include "localDb/localDb.h"
#include "localDb/script/localDataBase.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "report/localDbReport.h"
#include "script/localDbScript.h"
#include "sqlite/localDbSqlite.h"
#include "text/localDbText.h"

std::int64_t localDataBaseRecord::counterStaticTotal = 0;

localDataBaseRecord::localDataBaseRecord(localDataBaseTable* table) {
    table_.objectBind(table, localDataBaseTable::classDeclaration());
    int status = localErrorTypeOK;
    const localDbConnection& connection = table->database(status)->here();
    const QSqlRecord fields = connection.database().record(localDbQString(table->name()));
    for (int i = 0; i < fields.count(); ++i) {
        const std::u16string name = fields.fieldName(i).toStdU16String();
        localDbVariable(context, name).setVal(localDbWords(u"value of [", name, u"]"));
    }
    ++counterStaticTotal;
}

bool localDataBaseRecord::select(int& status, std::u16string_view condition) {
    localDataBase* const database = table().database(status);
    if (database == nullptr) {
        return false;
    }
    constexpr std::string_view caller = "classImplementationMethodFunction";
    const localDbConnection& connection = database->here();
    query_.reset();
    if (!localDb::connectionOpen(connection.name(), caller)) {
        return false;
    }
    queryConnection_ = connection.name();
    query_.emplace(connection.database());
    columns_.clear();
    const std::u16string sql = localDbWords(u"select * from ", localDbSqlite::word(table().name()),
                                            condition.empty() ? u"" : u" where ", condition, u" ;");
    if (!localDb::exec(*query_, localDbQString(sql))) {
        // A condition that is none is not told of. Meant.
        if (!localDbSqlite::isStatementAtFault(query_->lastError())) {
            localDbTellStatement(caller, sql, localDbErrors(queryConnection_, *query_, sql));
        }
        return false;
    }
    const QSqlRecord fields = query_->record();
    for (int i = 0; i < fields.count(); ++i) {
        columns_.push_back(&localDbVariable(context, fields.fieldName(i).toStdU16String()));
    }
    return true;
}

bool localDataBaseRecord::next(int& status) {
    if (table().database(status) == nullptr || !query_) {
        return false;
    }
    if (!localDbConnection::isHere(queryConnection_) ||
        query_->driver() != localDbConnection::database(queryConnection_).driver()) {
        traceLine(u"NEXT() goes on where SELECT() was called: on the same thread, with the same "
                  u"connection. Call SELECT() here.",
                  "next");
        status = localErrorTypeDATABASECONNECTION;
        return false;
    }
    if (!query_->next()) {
        if (query_->lastError().isValid() && query_->isSelect()) {
            traceLine(localDbWords(u"NEXT() cannot read on: ",
                                   localDbView(query_->lastError().databaseText())),
                      "next");
            status = localErrorTypeDATABASECONNECTION;
        }
        return false;
    }
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        columns_[i]->setVal(localDbView(query_->value(static_cast<int>(i)).toString()));
    }
    return true;
}

std::u16string localDataBaseRecord::toStringRecord() const {
    return localDbWords(u"Запись таблицы [", table().name(), u"] adr [", addressText(this), u"] ");
}
