// The data file: its name, and the connection "dbMain" on it.

#include <QCoreApplication>
#include <QFileInfo>
#include <QSqlError>
#include <QVariant>

#include "localDb/localDb.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/text/localString.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "report/localDbReport.h"
#include "sqlite/localDbSqlite.h"
#include "text/localDbText.h"

namespace {

constexpr const char* property = "dataFileName";

// Stands for the property as long as there is no application object.
std::u16string& nameWithoutApplication() {
    static std::u16string name;
    return name;
}

std::u16string nameThatWasSet() {
    const QCoreApplication* const application = QCoreApplication::instance();
    const QString name =
        application != nullptr ? application->property(property).toString() : QString();
    return name.isEmpty() ? nameWithoutApplication() : name.toStdU16String();
}

bool fileExists(std::u16string_view name) {
    return QFileInfo::exists(localDbQString(localPlatform::normalizedPath(name)));
}

bool openMain(std::u16string_view fileName, std::string_view caller) {
    // Windows come and go over it, so the first hold is never dropped. Each further one takes the
    // connection over from a thread that has ended.
    static const localDbConnection& forGood = *new localDbConnection(localDbConnection::mainName);
    const localDbConnection again(forGood.name());
    const std::u16string name =
        fileExists(fileName) ? std::u16string(fileName) : localDb::applicationGetDataFullFileName();
    writeLine(localDbWords(u"fileNameForOpenQString=[", name, u"]localDb::testDbInit выбран файл [",
                           name, u"]"));
    return localDb::connectionOpen(forGood.name(), name, caller);
}

void tellFailedOpen(std::string_view caller, std::u16string_view fileName, const QSqlError& error) {
    localDbTellPlain(localReport::Kind::critical, caller,
                     localDbWords(u"Ошибка открытия базы\n", u"fileName = ", fileName, u"\n",
                                  u"driverText()   = ", localDbView(error.driverText()), u"\n",
                                  u"databaseText() = ", localDbView(error.databaseText()), u"\n"));
}

}  // namespace

void localDb::applicationSetDataFullFileName(std::u16string_view fileName) {
    nameWithoutApplication() = fileName;
    if (QCoreApplication* const application = QCoreApplication::instance()) {
        application->setProperty(property, localDbQString(fileName));
    }
}

std::u16string localDb::applicationGetDataFullFileName() {
    std::u16string name = nameThatWasSet();
    if (!name.empty() && fileExists(name)) {
        return name;
    }
    name = u"..\\lib\\Zakup200215.sqlite";
    writeLine(u"defaultName=" + name);
    if (!fileExists(name)) {
        const std::u16string chosen = localHost::current().chooseFile(
            u"Open file database ", localPlatform::workingDirectory(), {u"*.sqlite *.sqlite"});
        if (!chosen.empty()) {
            name = chosen;
        }
    }
    applicationSetDataFullFileName(name);
    return name;
}

bool localDb::connectionOpen(std::u16string_view connection, std::u16string_view fileName,
                             std::string_view caller) {
    const std::u16string callerName = localString::fromUtf8(caller);
    if (!localDbUsable(connection, caller, {.title = callerName})) {
        return false;
    }
    QSqlError error;
    if (localDbConnection::open(connection, fileName)) {
        // What is no data file, and a locked one, shows only when it is looked into.
        QSqlQuery look(localDbConnection::database(connection));
        if (exec(look, localDbQString(localDbSqlite::lookSql()))) {
            writeLine(localDbWords(u"база данных по адресу [", fileName, u"] открыта успешно."));
            return true;
        }
        error = look.lastError();
    } else {
        error = localDbConnection::database(connection).lastError();
    }
    tellFailedOpen(caller, fileName, error);
    return false;
}

bool localDb::connectionOpen(std::u16string_view connection, std::string_view caller) {
    if (localDbConnection::open(connection)) {
        return true;
    }
    if (localDbConnection::exists(connection) && localDbConnection::isHere(connection)) {
        const QSqlDatabase database = localDbConnection::database(connection);
        if (!database.databaseName().isEmpty()) {
            // No error: it was not tried, since that would make the file that is gone.
            const QSqlError error = database.lastError();
            const QSqlError gone(QString(), QStringLiteral("There is no such file."));
            tellFailedOpen(caller, localDbView(database.databaseName()),
                           error.isValid() ? error : gone);
        }
    }
    return false;
}

bool localDb::testDbInit(std::u16string_view fileName) {
    return openMain(fileName, "testDbInit");
}

bool localDb::testDbSqliteInit(std::u16string_view fileName) {
    return openMain(fileName, "testDbSqliteInit");
}
