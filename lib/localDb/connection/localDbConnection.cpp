#include "localDb/connection/localDbConnection.h"

#include <QFileInfo>

#include <cassert>
#include <map>
#include <memory>
#include <mutex>
#include <optional>

#include "localDb/localDb.h"
#include "localInterpretatorUTF8/classes/localDateTime.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/text/localString.h"
#include "sqlite/localDbSqlite.h"
#include "text/localDbText.h"

namespace {

// A thread, as long as it lives. The system's own numbers of threads are given anew to others.
using Thread = std::shared_ptr<char>;

const Thread& thisThread() {
    thread_local const Thread thread = std::make_shared<char>();
    return thread;
}

struct Held {
    int holds = 0;
    std::weak_ptr<char> owner;
    std::u16string file;  // full name of the one chosen
    // What that name stood for when it was opened: a file made anew under it is another one.
    std::optional<localPlatform::FileIdentity> opened;
};

struct Connections {
    std::mutex mutex;
    std::map<std::u16string, Held, std::less<>> byName;
};

Connections& connections() {
    // Never destroyed: holds may end later than any other static object.
    static auto* const all = new Connections;
    return *all;
}

// Empty for a connection that somebody else made.
Held heldAs(std::u16string_view name) {
    Connections& all = connections();
    const std::lock_guard lock(all.mutex);
    const auto found = all.byName.find(name);
    return found == all.byName.end() ? Held() : found->second;
}

bool openOn(std::u16string_view name, QSqlDatabase& connection, const std::u16string& fullName) {
    const bool opened = connection.open();
    Connections& all = connections();
    const std::lock_guard lock(all.mutex);
    const auto found = all.byName.find(name);
    if (found != all.byName.end()) {
        found->second.file = fullName;
        found->second.opened = localPlatform::fileIdentity(fullName);
    }
    return opened;
}

}  // namespace

std::u16string localDbConnection::nameForObject() {
    const std::u16string stamped = u"db-" + localString::fromUtf8(localDateTime().toStringAscii());
    std::u16string name = stamped;
    for (qint64 number = 2; exists(name) && !isHere(name); ++number) {
        name = localDbWords(stamped, u"#", localDbNumber(number));
    }
    return name;
}

bool localDbConnection::exists(std::u16string_view name) {
    return QSqlDatabase::contains(localDbQString(name));
}

bool localDbConnection::isHere(std::u16string_view name) {
    Connections& all = connections();
    const std::lock_guard lock(all.mutex);
    const auto found = all.byName.find(name);
    if (found != all.byName.end()) {
        return found->second.owner.lock() == thisThread();
    }
    // Made by somebody else: the toolkit gives the handle to the thread that made it.
    return QSqlDatabase::database(localDbQString(name), false).isValid();
}

localDbConnection::localDbConnection(std::u16string_view name)
    : name_(name), known_(localDbQString(name)) {
    const Thread& here = thisThread();
    Connections& all = connections();
    const std::lock_guard lock(all.mutex);
    Held& held = all.byName[name_];
    if (held.holds++ != 0 && held.owner.expired()) {
        // The thread it belonged to has ended. What it made is closed, and made anew here.
        QSqlDatabase::removeDatabase(known_);
        held.file.clear();
        held.owner.reset();
    }
    if (!QSqlDatabase::contains(known_)) {
        QSqlDatabase::addDatabase(localDbSqlite::driver(), known_);
    }
    if (held.owner.expired()) {
        held.owner = here;
    }
}

localDbConnection::~localDbConnection() {
    Connections& all = connections();
    const std::lock_guard lock(all.mutex);
    const auto found = all.byName.find(name_);
    if (--found->second.holds == 0) {
        all.byName.erase(found);
        QSqlDatabase::removeDatabase(known_);
    }
}

QSqlDatabase localDbConnection::database(std::u16string_view name) {
    assert(isHere(name));
    return QSqlDatabase::database(localDbQString(name), false);
}

bool localDbConnection::open(std::u16string_view name, std::u16string_view fileName) {
    if (fileName.empty() || !exists(name) || !isHere(name)) {
        return false;
    }
    QSqlDatabase connection = database(name);
    const QString file = localDbQString(localPlatform::normalizedPath(fileName));
    const std::u16string fullName = QFileInfo(file).absoluteFilePath().toStdU16String();
    const Held before = heldAs(name);
    if (connection.isOpen() && before.file == fullName &&
        before.opened == localPlatform::fileIdentity(fullName)) {
        return true;
    }
    connection.close();
    connection.setDatabaseName(file);
    // The driver passes over these three; they are set all the same. Meant.
    connection.setHostName(QStringLiteral("korvo"));
    connection.setUserName(QStringLiteral("korvo"));
    connection.setPassword(QStringLiteral("korvoKey"));
    connection.setConnectOptions(localDbSqlite::connectOptions());
    return openOn(name, connection, fullName);
}

bool localDbConnection::open(std::u16string_view name) {
    if (!exists(name) || !isHere(name)) {
        return false;
    }
    QSqlDatabase connection = database(name);
    const Held held = heldAs(name);
    if (held.file.empty()) {
        return connection.isOpen() || (!connection.databaseName().isEmpty() && connection.open());
    }
    const std::optional<localPlatform::FileIdentity> now = localPlatform::fileIdentity(held.file);
    if (connection.isOpen() && now == held.opened) {
        return true;
    }
    // The file of that name was replaced, or it is gone: what went into the old one now would be
    // lost, and a new one is made only where it is chosen.
    connection.close();
    if (!now) {
        return false;
    }
    connection.setDatabaseName(localDbQString(held.file));
    return openOn(name, connection, held.file);
}

bool localDbConnection::isReadable() const {
    QSqlQuery look;
    return localDb::connectionOpen(name_, "isReadable") &&
           localDb::dbQueryExec(name_, localDbSqlite::lookSql(), look);
}

std::optional<std::vector<std::u16string>> localDbConnection::tables() const {
    if (!isReadable()) {
        return std::nullopt;
    }
    std::vector<std::u16string> names;
    for (const QString& name : database().tables(QSql::Tables)) {
        names.push_back(name.toStdU16String());
    }
    return names;
}
