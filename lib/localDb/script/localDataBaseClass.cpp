// The class DATABASE.
#include "localDb/localDb.h"
#include "localDb/script/localDataBase.h"
#include "localDb/script/localDataBaseRecord.h"
#include "localDb/script/localDataBaseTable.h"
#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/container/localValueTable.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "script/localDbScript.h"
#include "text/localDbText.h"

namespace {

localDataBase& baseOf(const localCall& call) {
    return *static_cast<localDataBase*>(call.object);
}

bool toStringMethod(localCall& call) {
    return call.give(baseOf(call).toStringBase());
}

bool testDbOpen(localCall& call) {
    return call.giveBoolean(localDb::testDbSqliteInit(call.text(0)));
}

// There is no number of arguments with which it works. Meant.
bool clear(localCall& call) {
    return call.fail(call.args.empty() ? localErrorTypeCODE : localErrorTypePARAMETERCOUNT);
}

bool connect(localCall& call) {
    const bool connected = baseOf(call).connect(call.status);
    call.giveBoolean(connected);
    return call.status == localErrorTypeOK;
}

// True also when there is no connection. Meant.
bool connected(localCall& call) {
    return call.giveBoolean(true);
}

bool display(localCall& call) {
    traceLine(u"Контекст:", "classImplementationMethodFunction");
    baseOf(call).context.dispMemo(u"");
    return call.giveBoolean(true);
}

bool queryToValueTable(localCall& call) {
    const std::u16string& connection = baseOf(call).here().name();
    return call.giveBoolean(localDb::queryExecToValueTable(
        connection, *localValueTable::of(*call.args[1]), call.text(0)));
}

// The four facts of each field by name, the field's name being the presentation of them.
void fieldsToValueList(const localValueTable& fields, localValueList& list) {
    static constexpr const char16_t* facts[] = {u"Name", u"Type", u"Length", u"Precision"};
    list.clear();
    for (std::size_t row = 0; row < fields.rowsCount(); ++row) {
        auto* const field = new localValueList;
        list.valueAppend(field, fields.cell(row, 0).wStr);
        for (std::size_t column = 0; column < std::size(facts); ++column) {
            field->valueAppend(fields.cell(row, column), facts[column]);
        }
    }
}

bool tableFields(localCall& call) {
    if (localValueTable* const table = localValueTable::of(*call.args[1])) {
        return call.giveBoolean(baseOf(call).fieldsToValueTable(call.text(0), *table));
    }
    localValueList* const list = localValueList::of(*call.args[1]);
    if (list == nullptr) {
        return call.fail(localErrorTypePARAMETERTYPE);
    }
    localValueTable fields;
    const bool filled = baseOf(call).fieldsToValueTable(call.text(0), fields);
    fieldsToValueList(fields, *list);
    return call.giveBoolean(filled);
}

bool tableGet(localCall& call) {
    localDataBase& base = baseOf(call);
    if (!base.hasTable(call.text(0))) {
        return call.giveBoolean(false);
    }
    call.result.objectBind(new localDataBaseTable(base.reference(), std::u16string(call.text(0))),
                           localDataBaseTable::classDeclaration());
    return true;
}

bool recordGet(localCall& call) {
    localDataBase& base = baseOf(call);
    if (!base.hasTable(call.text(0))) {
        return call.giveBoolean(false);
    }
    auto* const record = new localDataBaseRecord(
        new localDataBaseTable(base.reference(), std::u16string(call.text(0))));
    call.result.objectBind(record, localDataBaseRecord::classDeclaration());
    const std::u16string words = record->toStringRecord();
    traceLine(words, "classImplementationMethodFunction");
    traceLine(localDbWords(u"Запись [", words, u"] adr [", addressText(record), u"] "),
              "classImplementationMethodFunction");
    return true;
}

bool tables(localCall& call) {
    const auto names = baseOf(call).here().tables();
    if (!names) {
        return call.giveBoolean(false);
    }
    auto* const list = new localValueList;
    call.result.objectBind(list, localValueList::classDeclaration());
    for (const std::u16string& name : *names) {
        list->valueAppend(localText(name), name);
    }
    return true;
}

constexpr localMethodRow methods[] = {
    {u"TOSTRING", u"СТРОКА", "", toStringMethod},
    {u"__TEST", u"__ТЕСТ", "n", localDbTestMethod},
    {u"__TESTDBOPEN", u"", "s", testDbOpen},
    {u"__TEST__BROWSE", u"", "l", localBroughtFromAbove},
    {u"CLEAR", u"ОЧИСТИТЬ", "?", clear},
    {u"CONNECT", u"ПОДКЛЮЧИТЬ", "", connect},
    {u"CONNECTED", u"", "", connected},
    {u"DISPLAY", u"", "", display},
    {u"QUERYTOVALUETABLE", u"ЗАПРОСВТАБЛИЦУЗНАЧЕНИЙ", "st", queryToValueTable},
    {u"RECORDGET", u"", "s", recordGet},
    {u"TABLEFIELDS", u"ТАБЛИЦАПОЛЯ", "so", tableFields},
    {u"TABLEGET", u"", "s", tableGet},
    {u"TABLES", u"ТАБЛИЦЫ", "", tables},
    {u"TREESHOW", u"", "", localBroughtFromAbove},
};

// A name that is no method is a table.
bool tableRead(int& status, localContextUTF8*, void*& object, std::u16string_view name,
               localValueDescription*& result) {
    return localDbAttributeRead(status, static_cast<localDataBase*>(object)->context, name,
                                u"localDataBase", result);
}

constexpr localClassTable table = {
    .nameEng = u"DATABASE",
    .nameRus = u"БАЗАДАННЫХ",
    .description = u"класс БазаДанных",
    .nativeName = u"localDataBase",
    .native = localNativeOf<localDataBase>(),
    .methods = methods,
    .attributes = {},
    .classWideMethods = true,
    .classWideAttributes = tableRead,
};

}  // namespace

localClassDeclaration* localDataBase::classDeclaration() {
    return localTableClass<table>();
}
