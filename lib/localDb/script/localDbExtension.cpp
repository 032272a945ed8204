#include "localDb/localDbExtension.h"

#include "localDb/script/localDataBase.h"
#include "localDb/script/localDataBaseRecord.h"
#include "localDb/script/localDataBaseTable.h"

namespace {

localClassDeclarations declarations() {
    static localClassDeclaration* const all[] = {localDataBase::classDeclaration(),
                                                 localDataBaseTable::classDeclaration(),
                                                 localDataBaseRecord::classDeclaration()};
    return all;
}

constexpr localExtensionClass classes[] = {{u"DATABASE", declarations}};

constexpr localCounter counters[] = {
    {"localDataBase::counterStaticTotal", &localDataBase::counterStaticTotal},
    {"localDataBaseTable::counterStaticTotal", &localDataBaseTable::counterStaticTotal},
    {"localDataBaseRecord::counterStaticTotal", &localDataBaseRecord::counterStaticTotal},
};

}  // namespace

constexpr localExtension localDbExtension = {
    .name = u"localDb", .classes = classes, .counters = counters};
