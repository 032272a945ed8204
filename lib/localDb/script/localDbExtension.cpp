#include "localDb/localDbExtension.h"

#include <QByteArray>
#include <QDir>

#include "localDb/localDb.h"
#include "localDb/script/localDataBase.h"
#include "localDb/script/localDataBaseRecord.h"
#include "localDb/script/localDataBaseTable.h"
#include "localInterpretatorUTF8/file/localStd.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "text/localDbText.h"

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

void localDbDataFileOfEnvironment() {
    const std::u16string name =
        localPlatform::fileNameFromBytes(qgetenv("KORVO_DATA").toStdString());
    if (!name.empty()) {
        const QDir startedIn(localDbQString(localStd::startDirectory()));
        const QString path = localDbQString(localPlatform::normalizedPath(name));
        localDb::applicationSetDataFullFileName(localDbView(startedIn.absoluteFilePath(path)));
    }
}
