#include "statement/localDbStatement.h"

#include <QElapsedTimer>
#include <QSqlError>
#include <QThread>

#include "localDb/localDb.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "report/localDbReport.h"
#include "sqlite/localDbSqlite.h"
#include "text/localDbText.h"

namespace {

// In milliseconds.
constexpr qint64 lockedWait = 5000;
constexpr unsigned long lockedPause = 20;

class waitCursor {
public:
    waitCursor() { localHost::current().setCursor(localHost::Cursor::wait); }
    ~waitCursor() { localHost::current().setCursor(localHost::Cursor::restored); }
    waitCursor(const waitCursor&) = delete;
    waitCursor& operator=(const waitCursor&) = delete;
};

}  // namespace

std::u16string localDbUnfitText(std::u16string_view sql) {
    if (sql.find(u'\0') != std::u16string_view::npos) {
        return u"A statement cannot hold the letter NUL.";
    }
    return QStringView(sql).isValidUtf16() ? u"" : u"A statement cannot hold half of a letter.";
}

bool localDb::exec(QSqlQuery& query, const QString& sql, Reading reading) {
    if (!localDbUnfitText(localDbView(sql)).empty()) {
        return false;
    }
    query.setForwardOnly(reading == Reading::forward);
    if (query.exec(sql)) {
        return true;
    }
    if (!localDbSqlite::isLocked(query.lastError())) {
        return false;
    }
    const waitCursor cursor;
    QElapsedTimer waited;
    waited.start();
    do {
        QThread::msleep(lockedPause);
        if (query.exec(sql)) {
            return true;
        }
    } while (localDbSqlite::isLocked(query.lastError()) && !waited.hasExpired(lockedWait));
    return false;
}

std::u16string localDb::nameWord(std::u16string_view name) {
    return localDbSqlite::word(name);
}

bool localDb::dbQueryExec(std::u16string_view connection, std::u16string_view sql,
                          QSqlQuery& query) {
    if (!localDbUsable(connection, "dbQueryExec", {.title = u"localDb::dbQueryExec()"})) {
        return false;
    }
    const bool isOpen = localDbConnection::open(connection);
    query = QSqlQuery(localDbConnection::database(connection));
    if (isOpen && exec(query, localDbQString(sql))) {
        return true;
    }
    localDbTellStatement("dbQueryExec", sql, localDbErrors(connection, query, sql));
    return false;
}
