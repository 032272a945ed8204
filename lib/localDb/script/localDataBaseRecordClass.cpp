// The class DATABASERECORD.
#include "localDb/script/localDataBaseRecord.h"
#include "script/localDbScript.h"

namespace {

localDataBaseRecord& recordOf(const localCall& call) {
    return *static_cast<localDataBaseRecord*>(call.object);
}

bool toStringMethod(localCall& call) {
    return call.give(recordOf(call).toStringRecord());
}

bool display(localCall& call) {
    recordOf(call).context.dispMemo(u"");
    return call.giveBoolean(true);
}

// The logical result, unless there is more to tell.
bool answer(localCall& call, bool done) {
    call.giveBoolean(done);
    return call.status == localErrorTypeOK;
}

bool select(localCall& call) {
    const std::u16string_view condition = call.args.empty() ? u"" : call.text(0);
    return answer(call, recordOf(call).select(call.status, condition));
}

bool next(localCall& call) {
    return answer(call, recordOf(call).next(call.status));
}

constexpr localMethodRow methods[] = {
    {u"TOSTRING", u"СТРОКА", "", toStringMethod},
    {u"__TEST", u"__ТЕСТ", "n", localDbTestMethod},
    {u"DISPLAY", u"", "", display},
    {u"FIELDS", u"", "", nullptr},
    {u"SELECT", u"", "|s", select},
    {u"NEXT", u"", "", next},
};

// A name that is no method is a field.
bool fieldRead(int& status, localContextUTF8*, void*& object, std::u16string_view name,
               localValueDescription*& result) {
    return localDbAttributeRead(status, static_cast<localDataBaseRecord*>(object)->context, name,
                                u"localDataBaseRecord", result);
}

constexpr localClassTable recordTable = {
    .nameEng = u"DATABASERECORD",
    .nameRus = u"БАЗАДАННЫХЗАПИСЬ",
    .description = u"класс БазаДанныхЗапись",
    // The neighbour's name. Meant.
    .nativeName = u"localDataBaseTable",
    .native = localDbGivenOnly<localDataBaseRecord>(),
    .methods = methods,
    .attributes = {},
    .classWideMethods = true,
    .classWideAttributes = fieldRead,
};

}  // namespace

localClassDeclaration* localDataBaseRecord::classDeclaration() {
    return localTableClass<recordTable>();
}
