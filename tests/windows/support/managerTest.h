// What the tests of the windows over a data file share: a file made by somebody else, boxes that
// are answered, the windows that are open.
#pragma once

#include <QtTest>

#include <QApplication>
#include <QMenu>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

#include <clocale>

#include "localDb/localDb.h"
#include "localDbVcl/manager/localDbManager.h"
#include "localDbVcl/manager/localDbManagerTableView.h"
#include "localDbVcl/manager/localDbtQTableView.h"
#include "localInterpretatorUTF8/file/localStd.h"
#include "localInterpretatorUTF8/value/localMemoryManager.h"
#include "localVCL/host/localVclHost.h"
#include "localVCL/window/localMainWindow.h"
#include "screenshot.h"
#include "support/recordingHost.h"
#include "testFiles.h"
#include "windowTest.h"

namespace managerTest {

using Button = localReport::Button;

// A connection of somebody else, for as long as it lives.
class otherConnection {
public:
    explicit otherConnection(const QString& file) {
        static int count = 0;
        database_ = QSqlDatabase::addDatabase("QSQLITE", "other " + QString::number(++count));
        database_.setDatabaseName(file);
        database_.setConnectOptions("QSQLITE_BUSY_TIMEOUT=0");
        opened_ = database_.open();
    }
    ~otherConnection() {
        const QString name = database_.connectionName();
        database_ = {};
        QSqlDatabase::removeDatabase(name);
    }
    // One statement a line. What failed, empty when nothing did.
    QString run(const QString& statements) {
        for (const QString& statement : statements.split('\n', Qt::SkipEmptyParts)) {
            QSqlQuery query(database_);
            if (!opened_ || !query.exec(statement)) {
                return statement + ": " + query.lastError().text();
            }
        }
        return {};
    }
    const QSqlDatabase& database() const { return database_; }
    // The rows as text, cells between strokes.
    QStringList rows(const QString& statement) {
        QStringList all;
        QSqlQuery query(database_);
        if (!query.exec(statement)) {
            return {query.lastError().text()};
        }
        while (query.next()) {
            QStringList cells;
            for (int i = 0; i < query.record().count(); ++i) {
                cells.append(query.value(i).toString());
            }
            all.append(cells.join('|'));
        }
        return all;
    }

private:
    QSqlDatabase database_;
    bool opened_ = false;
};

class test : public QObject {
    Q_OBJECT

protected:
    QTemporaryDir folder_;
    boxRecordingHost<localVclHost> host_;

    QString path(const QString& name) const { return folder_.filePath(name); }
    // Makes the file "data.sqlite" anew.
    void make(const QString& statements) {
        testFiles::write("data.sqlite", "");
        QCOMPARE(otherConnection("data.sqlite").run(statements), QString());
    }
    static QStringList rows(const QString& statement) {
        return otherConnection("data.sqlite").rows(statement);
    }
    // All that was asked, without the place in the source, which changes.
    QStringList boxes() const {
        QStringList all;
        for (const std::string& call : host_.calls) {
            static const QRegularExpression place("line: \\d+");
            all.append(QString::fromStdString(call).replace(place, "line: N"));
        }
        return all;
    }
    void forget() {
        host_.calls.clear();
        host_.reports.clear();
    }
    static QString head(const QString& function) {
        return "func: " + function + "\n file: ../lib/localDb\n line: N\n\n";
    }
    static QString htmlHead(const QString& function) {
        return "func: " + function + "<BR/> file: ../lib/localDb<BR/> line: N<BR/><BR/>";
    }

    static QList<QWidget*> windows() {
        QList<QWidget*> all;
        for (QWidget* const widget : QApplication::topLevelWidgets()) {
            if (qobject_cast<localMainWindow*>(widget) != nullptr && widget->isVisible()) {
                all.append(widget);
            }
        }
        return all;
    }
    static QWidget* window(const QString& title) {
        for (QWidget* const each : windows()) {
            if (each->windowTitle() == title) {
                return each;
            }
        }
        return nullptr;
    }
    // The view of an open window; null when there is none.
    static localDbManagerTableView* list() {
        QWidget* const found = window("dbManage()");
        return found == nullptr ? nullptr : found->findChild<localDbManagerTableView*>();
    }
    static localDbtQTableView* table(const QString& name) {
        QWidget* const found = window(name + ".dbMain");
        return found == nullptr ? nullptr : found->findChild<localDbtQTableView*>();
    }
    // The texts of a view, cells between strokes.
    static QStringList shown(const QAbstractItemView& view) {
        QStringList all;
        const QAbstractItemModel& model = *view.model();
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model.columnCount(); ++column) {
                cells.append(model.index(row, column).data().toString());
            }
            all.append(cells.join('|'));
        }
        return all;
    }
    // Makes the object current; false when it is not in the list.
    static bool choose(const QString& object) {
        localDbManagerTableView& view = *list();
        for (int row = 0; row < view.model()->rowCount(); ++row) {
            if (view.model()->index(row, 1).data() == object) {
                view.setCurrentIndex(view.model()->index(row, 1));
                return true;
            }
        }
        return false;
    }

private slots:
    void initTestCase() {
        std::setlocale(LC_NUMERIC, "C");
        localMemoryManager::start();
        QVERIFY(QDir::setCurrent(folder_.path()));
        localStd::startDirectory();
    }

protected slots:
    void init() {
        forget();
        host_.answers.clear();
    }
    void cleanup() {
        for (QWidget* const widget : QApplication::topLevelWidgets()) {
            if (qobject_cast<localMainWindow*>(widget) != nullptr) {
                delete widget;
            }
        }
        QVERIFY(QApplication::activeModalWidget() == nullptr);
        QVERIFY(host_.answers.empty());
        localDb::applicationSetDataFullFileName(u"");
        if (localDbConnection::exists(localDbConnection::mainName)) {
            localDbConnection::database(localDbConnection::mainName).close();
        }
        QFile::remove("data.sqlite");
    }
};

}  // namespace managerTest
