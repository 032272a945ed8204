// The class DATABASETABLE.
#include "localDb/script/localDataBase.h"
#include "localDb/script/localDataBaseTable.h"
#include "localInterpretatorUTF8/container/localValueTable.h"
#include "script/localDbScript.h"

namespace {

localDataBaseTable& tableOf(const localCall& call) {
    return *static_cast<localDataBaseTable*>(call.object);
}

bool toStringMethod(localCall& call) {
    return call.give(tableOf(call).toStringTable());
}

bool fields(localCall& call) {
    localDataBase* const database = tableOf(call).database(call.status);
    if (database == nullptr) {
        return false;
    }
    auto* const table = new localValueTable;
    call.result.objectBind(table, localValueTable::classDeclaration());
    database->fieldsToValueTable(tableOf(call).name(), *table);
    return true;
}

constexpr localMethodRow methods[] = {
    {u"TOSTRING", u"СТРОКА", "", toStringMethod},
    {u"__TEST", u"__ТЕСТ", "n", localDbTestMethod},
    {u"FIELDS", u"", "", fields},
};

constexpr localClassTable table = {
    .nameEng = u"DATABASETABLE",
    .nameRus = u"БАЗАДАННЫХТАБЛИЦА",
    .description = u"класс БазаДанныхТаблица",
    .nativeName = u"localDataBaseTable",
    .native = localDbGivenOnly<localDataBaseTable>(),
    .methods = methods,
    .attributes = {},
    .classWideMethods = true,
};

}  // namespace

localClassDeclaration* localDataBaseTable::classDeclaration() {
    return localTableClass<table>();
}
