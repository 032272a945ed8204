// What the tests of browse windows share: a data file of goods in folders, connections to it, and a
// host that records.
#pragma once

#include <QtTest>

#include <QApplication>
#include <QDir>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <clocale>
#include <iostream>
#include <memory>
#include <optional>

#include "localDb/localDb.h"
#include "localDbVcl/directory/localRefBrowseWidget200123.h"
#include "localInterpretatorUTF8/thread/localTurn.h"
#include "localInterpretatorUTF8/value/localMemoryManager.h"
#include "localVCL/host/localVclHost.h"
#include "localVCL/window/localMainWindow.h"
#include "localVCL/window/localVclTurn.h"
#include "screenshot.h"
#include "support/recordingHost.h"
#include "windowTest.h"

class browseTest : public QObject {
    Q_OBJECT

public:
    static constexpr std::u16string_view connectionName = u"browse";

    class host : public boxRecordingHost<localVclHost> {
    public:
        int beeps = 0;
        // Done while a box is open.
        std::function<void()> atBox;

        void beep() override { ++beeps; }
        Button report(const localReport& report) override {
            const Button answer = boxRecordingHost<localVclHost>::report(report);
            if (atBox) {
                std::exchange(atBox, {})();
            }
            return answer;
        }
    };

protected:
    QTemporaryDir folder_;
    host host_;
    outputCapture output_;
    std::unique_ptr<localDbConnection> connection_;

    void sql(const QString& statement) {
        QSqlQuery query(connection_->database());
        QVERIFY2(query.exec(statement), qPrintable(statement + query.lastError().text()));
    }
    QStringList rows(const QString& select) {
        QSqlQuery query(connection_->database());
        query.exec(select);
        QStringList all;
        while (query.next()) {
            all.append(query.value(0).toString());
        }
        return all;
    }
    // So many goods in folders of 25, as the demonstration file has them.
    void makeGoods(int count) {
        connection_.reset();
        QFile::remove("data.sqlite");
        QFile empty("data.sqlite");
        QVERIFY(empty.open(QIODevice::WriteOnly));
        empty.close();
        connection_ = std::make_unique<localDbConnection>(connectionName);
        QVERIFY(localDbConnection::open(connectionName, u"data.sqlite"));
        const int folders = (count + 24) / 25;
        const QString numbers = "with recursive n(i) as (select 1 union all select i+1 from n where"
                                " i<%1) insert into Ref03 ";
        sql("create table Ref03 (id INTEGER PRIMARY KEY AUTOINCREMENT, parentid INT(18), isfolder"
            " INT(1), code CHAR(12), descr CHAR(60), ismark INT(1), CenaK NUME(14,2))");
        if (count > 0) {
            sql(numbers.arg(folders) +
                "select i, 0, 1, printf('П%06d', i), 'Папка ' || i, 0, null from n");
            sql(numbers.arg(count) +
                QString("select %1+i, 1+(i-1)/25, 0, printf('%06d', i), 'Гвозди ' || i, 0, i*1.5"
                        " from n")
                    .arg(folders));
        }
        for (const char* const index :
             {"ID on Ref03(id)", "CODE on Ref03(code)", "DESCR on Ref03(descr)",
              "PCODE on Ref03(parentid, isfolder, code)",
              "PDESCR on Ref03(parentid, isfolder, descr)"}) {
            sql(QString("create index Ref03_") + index);
        }
    }

    static std::vector<localDbDataSource200123::Alias> tov() {
        return {{.aliasName = u"tov", .dbtName = u"Ref03"}};
    }
    static std::shared_ptr<localDbDataSource200123> goods(std::u16string_view index) {
        std::vector<localDbDataSource200123::SqlExpression> expressions;
        for (const char16_t* const column : {u"tov.id", u"tov.parentid", u"tov.isfolder",
                                             u"tov.code", u"tov.descr", u"tov.CenaK"}) {
            expressions.push_back({.sqlExpression = column});
        }
        return localDbDataSource200123::make(connectionName, tov(), std::move(expressions), {},
                                             index, {});
    }
    // Columns id, code, description, price.
    static localDbtBrowseWidget200123::Columns goodsColumns(bool paired = false) {
        const struct {
            const char* caption;
            int expression;
            int width;
            const char16_t* index;
            const char16_t* folderIndex;
        } described[] = {{"id", 0, 60, paired ? u"" : u"Ref03_ID", u""},
                         {"Код", 3, 80, u"Ref03_CODE", u"Ref03_PCODE"},
                         {"Наименование", 4, 250, u"Ref03_DESCR", u"Ref03_PDESCR"},
                         {"Цена", 5, 80, u"", u""}};
        localDbtBrowseWidget200123::Columns columns;
        for (const auto& one : described) {
            auto column = std::make_unique<localDbtBrowseColumn>();
            column->caption = one.caption;
            column->dataBuferColumn = one.expression;
            column->width = one.width;
            column->idxName = one.index;
            column->idxPName = one.folderIndex;
            columns.push_back(std::move(column));
        }
        return columns;
    }

    // Gives the grid so many screen rows.
    static void setRows(QWidget& grid, int screenRows) {
        const auto& browse = static_cast<localVclGrid200123&>(grid);
        const int step = browse.cellRectangle(2, 0).top() - browse.cellRectangle(1, 0).top();
        grid.resize(grid.width(), screenRows * step);
        QCOMPARE(browse.visibleRows(), static_cast<unsigned>(screenRows));
    }
    template <typename Browse>
    std::unique_ptr<Browse> made(int screenRows, std::u16string_view index = u"Ref03_CODE",
                                 localDbtBrowsePurpose purpose = localDbtBrowsePurpose::look) {
        constexpr bool paired = std::is_same_v<Browse, localRefBrowseWidget200123>;
        auto browse = std::make_unique<Browse>(goods(index), goodsColumns(paired), purpose);
        browse->resize(560, 100);
        setRows(*browse, screenRows);
        host_.beeps = 0;
        return browse;
    }
    template <typename Browse>
    std::unique_ptr<Browse> shown(int screenRows, std::u16string_view index = u"Ref03_CODE",
                                  localDbtBrowsePurpose purpose = localDbtBrowsePurpose::look) {
        auto browse = made<Browse>(screenRows, index, purpose);
        browse->show();
        return browse;
    }
    // Letters as a keyboard sends them.
    static void type(QWidget& widget, const QString& text) {
        for (const QChar letter : text) {
            QTest::sendKeyEvent(QTest::Click, &widget,
                                static_cast<Qt::Key>(letter.toUpper().unicode()), QString(letter),
                                Qt::NoModifier, 0);
        }
    }
    // Texts of a row of the screen.
    static QStringList rowTexts(localVclGrid200123& grid, unsigned row) {
        QStringList texts;
        for (unsigned column = 1; column <= grid.columnsCount(); ++column) {
            texts.append(grid.cellText(row, column));
        }
        return texts;
    }

private slots:
    void initTestCase() {
        std::setlocale(LC_NUMERIC, "C");
        localMemoryManager::start();
        localVclTurnInstall();
        QVERIFY(QDir::setCurrent(folder_.path()));
    }

protected slots:
    void init() {
        host_.calls.clear();
        host_.reports.clear();
        host_.atBox = {};
    }
    void cleanup() {
        for (QWidget* const widget : QApplication::topLevelWidgets()) {
            if (qobject_cast<localMainWindow*>(widget) != nullptr) {
                delete widget;
            }
        }
        connection_.reset();
    }
};
