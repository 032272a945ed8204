// The list of a data file's objects: what it shows, its keys, files that cannot be read.
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>

#include <memory>

#include "localVCL/text/localVclText.h"
#include "managerTest.h"

namespace {

const QString goods = "create table Goods (id INTEGER PRIMARY KEY, code CHAR(9))\n"
                      "insert into Goods values (1,'001'),(2,'002'),(3,'003')\n"
                      "create index Goods_CODE on Goods (code)\n"
                      "create view Dear as select * from Goods\n"
                      "create trigger Told after delete on Goods begin select 1; end\n"
                      "create table Empty (id INTEGER PRIMARY KEY)\n";

const QString goodsSql = "CREATE TABLE Goods (id INTEGER PRIMARY KEY, code CHAR(9))";

}  // namespace

class manager : public managerTest::test {
    Q_OBJECT

private:
    static constexpr int F4 = Qt::Key_F4;

    // The box of a file that does not open, with what the driver says.
    static QString notOpened(const QString& complaint) {
        return "critical [testDbInit] [" + head("testDbInit") +
               "Ошибка открытия базы\nfileName = " + QFileInfo("data.sqlite").absoluteFilePath() +
               "\ndriverText()   = Unable to execute statement\ndatabaseText() = " + complaint +
               "\n]";
    }

private slots:
    // --- the list

    void showsObjectsInTheOrderOfTheFile() {
        make(goods);
        QVERIFY(dbManage(u"data.sqlite"));
        localDbManagerTableView& view = *list();
        QCOMPARE(shown(view),
                 QStringList({"table|Goods||" + goodsSql,
                              "index|Goods_CODE||CREATE INDEX Goods_CODE on Goods (code)",
                              "view|Dear||CREATE VIEW Dear as select * from Goods",
                              "trigger|Told||CREATE TRIGGER Told after delete on Goods begin "
                              "select 1; end",
                              "table|Empty||CREATE TABLE Empty (id INTEGER PRIMARY KEY)"}));
        const QAbstractItemModel& model = *view.model();
        const QStringList headers = {"objType", "objName", "rowCount", "tabComment"};
        for (int column = 0; column < headers.size(); ++column) {
            QCOMPARE(model.headerData(column, Qt::Horizontal).toString(), headers[column]);
        }
        QCOMPARE(model.headerData(0, Qt::Vertical).toInt(), 1);
        QCOMPARE(model.headerData(4, Qt::Vertical).toInt(), 5);
        QVERIFY(view.hasFocus() || view.window()->focusWidget() == &view);
        QCOMPARE(view.currentIndex().row(), 0);
        QVERIFY(boxes().isEmpty());
        QTest::keyClick(&view, Qt::Key_F5);
        QVERIFY(saveScreenshot(*view.window(), "manager"));
    }

    void anEmptyFileShowsHeadersAndNoRows() {
        make({});
        QVERIFY(dbManage(u"data.sqlite"));
        QCOMPARE(list()->model()->rowCount(), 0);
        QCOMPARE(list()->model()->columnCount(), 4);
        for (const int key : {Qt::Key_F4, Qt::Key_Delete, Qt::Key_F5, Qt::Key_Return}) {
            QTest::keyClick(list(), Qt::Key(key));
        }
        QTest::keyClick(list(), Qt::Key_F4, Qt::ShiftModifier);
        QCOMPARE(windows().size(), 1);
        QVERIFY(boxes().isEmpty());
    }

    void pastTheFourthColumnStandsThePlace() {
        make(goods);
        QVERIFY(localDb::testDbInit(u"data.sqlite"));
        class opened : public localDbManagerTableModel {
        public:
            using localDbManagerTableModel::createIndex;
            using localDbManagerTableModel::localDbManagerTableModel;
        };
        const opened model(u"dbMain");
        QCOMPARE(model.data(model.createIndex(1, 7)).toString(), QString("row = 1  col = 7   "));
        QVERIFY(!model.data(model.createIndex(9, 1)).isValid());
    }

    void anUnknownConnectionIsTold() {
        const localDbManagerTableModel model(u"nobody");
        QVERIFY(!model.isRead());
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(boxes(), QStringList({"warning [localDbManagerTableModel::"
                                       "localDbManagerTableModel] [DB [nobody] not found!]"}));
    }

    // --- keys

    void rowsAreCountedWhenAskedFor() {
        make(goods);
        QVERIFY(dbManage(u"data.sqlite"));
        QVERIFY(choose("Goods_CODE"));
        const auto* const hint = list()->window()->findChild<QLabel*>("hint");
        QVERIFY(hint->text().contains("F5 counts the rows"));
        QCOMPARE(list()->model()->index(0, 2).data(Qt::ToolTipRole).toString(),
                 QString("F5 counts the rows"));
        QTest::keyClick(list(), Qt::Key_F5);
        const QStringList counted = {"3", "", "", "", "0"};
        for (int row = 0; row < counted.size(); ++row) {
            QCOMPARE(list()->model()->index(row, 2).data().toString(), counted[row]);
        }
        QCOMPARE(list()->currentIndex().row(), 1);
        // And again, with what has changed since.
        QCOMPARE(managerTest::otherConnection("data.sqlite").run("delete from Goods where id>1"),
                 QString());
        QTest::keyClick(list(), Qt::Key_F5);
        QCOMPARE(list()->model()->index(0, 2).data().toString(), QString("1"));
        QVERIFY(boxes().isEmpty());
        QVERIFY(QApplication::overrideCursor() == nullptr);
    }

    void onlyATableOpens_data() {
        QTest::addColumn<QString>("object");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<bool>("opens");
        const int none = Qt::NoModifier;
        QTest::newRow("table") << "Goods" << F4 << none << true;
        QTest::newRow("table by Return") << "Goods" << int(Qt::Key_Return) << none << true;
        QTest::newRow("with Ctrl") << "Goods" << F4 << int(Qt::ControlModifier) << true;
        QTest::newRow("with Meta") << "Goods" << F4 << int(Qt::MetaModifier) << false;
        QTest::newRow("index") << "Goods_CODE" << F4 << none << false;
        QTest::newRow("view") << "Dear" << F4 << none << false;
        QTest::newRow("trigger") << "Told" << F4 << none << false;
    }
    void onlyATableOpens() {
        QFETCH(QString, object);
        QFETCH(int, key);
        QFETCH(int, modifiers);
        QFETCH(bool, opens);
        make(goods);
        QVERIFY(dbManage(u"data.sqlite"));
        QVERIFY(choose(object));
        QTest::keyClick(list(), Qt::Key(key), Qt::KeyboardModifiers(modifiers));
        QCOMPARE(table(object) != nullptr, opens);
        QCOMPARE(windows().size(), opens ? 2 : 1);
        QVERIFY(boxes().isEmpty());
    }

    void aDoubleClickOpens() {
        make(goods);
        QVERIFY(dbManage(u"data.sqlite"));
        const QPoint at = list()->visualRect(list()->model()->index(0, 1)).center();
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, at);
        QVERIFY(table("Goods") != nullptr);
    }

    void aTableIsDroppedWithWhatBelongsToIt() {
        make(goods);
        QVERIFY(dbManage(u"data.sqlite"));
        QVERIFY(choose("Goods"));
        dbTableBrowseShow(u"dbMain", u"Goods");
        host_.answers = {managerTest::Button::ok, managerTest::Button::ok};
        QTest::keyClick(list(), Qt::Key_Delete);
        QCOMPARE(boxes(),
                 QStringList({"question [localDb::dbtDeleteAfterAnswer] [Table \"Goods\" will be "
                              "deleted. <BR/> Are you sure? ] ok *cancel html",
                              "information [dbtDelete] [" + htmlHead("dbtDelete") +
                                  " Table Goods from dbMain deleted successfully  !] html"}));
        QCOMPARE(rows("select name from sqlite_master"), QStringList({"Dear", "Empty"}));
        QCOMPARE(shown(*list()).size(), 2);
        QVERIFY(shown(*list())[0].startsWith("view|Dear"));
        // The window of its rows has gone with it.
        QVERIFY(table("Goods") == nullptr);
    }

    void aTableIsKeptWhenThePersonDoesNotWant() {
        make(goods);
        QVERIFY(dbManage(u"data.sqlite"));
        QTest::keyClick(list(), Qt::Key_Delete);
        QCOMPARE(boxes().size(), 1);
        QCOMPARE(shown(*list()).size(), 5);
        QCOMPARE(rows("select count(*) from Goods"), QStringList({"3"}));
    }

    void anIndexIsDropped() {
        make(goods);
        QVERIFY(dbManage(u"data.sqlite"));
        QVERIFY(choose("Goods_CODE"));
        host_.answers = {managerTest::Button::ok, managerTest::Button::ok};
        QTest::keyClick(list(), Qt::Key_Delete);
        QCOMPARE(boxes(),
                 QStringList({"question [localDb::dbtDeleteAfterAnswer] [Index \"Goods_CODE\" will "
                              "be deleted. <BR/> Are you sure? ] ok *cancel html",
                              "warning [idxDelete] [" + htmlHead("idxDelete") +
                                  "Индекс Goods_CODE удалён! ] html"}));
        QCOMPARE(rows("select count(*) from sqlite_master where type='index'"), QStringList({"0"}));
        QCOMPARE(shown(*list()).size(), 4);
    }

    void viewsAndTriggersAreNotRemoved() {
        make(goods);
        QVERIFY(dbManage(u"data.sqlite"));
        for (const char* const object : {"Dear", "Told"}) {
            QVERIFY(choose(object));
            QTest::keyClick(list(), Qt::Key_Delete);
        }
        QVERIFY(boxes().isEmpty());
        QCOMPARE(shown(*list()).size(), 5);
    }

    void whatTheFileKeepsForItselfIsNotRemoved() {
        make("create table A (id INTEGER PRIMARY KEY AUTOINCREMENT, n INT UNIQUE)\n");
        QVERIFY(dbManage(u"data.sqlite"));
        for (const char* const object : {"sqlite_sequence", "sqlite_autoindex_A_1"}) {
            QVERIFY(choose(object));
            host_.answers = {managerTest::Button::ok, managerTest::Button::ok,
                             managerTest::Button::ok};
            QTest::keyClick(list(), Qt::Key_Delete);
            QVERIFY(boxes().last().contains("Unable to delete") ||
                    boxes().last().contains("Ошибка при выполнении запроса"));
        }
        QCOMPARE(shown(*list()).size(), 3);
    }

    void namesThatAreNoPlainWords() {
        make("create table \"my goods\" (id INTEGER PRIMARY KEY, \"the code\" CHAR(9))\n"
             "insert into \"my goods\" values (1,'001')\n"
             "create index \"by code\" on \"my goods\" (\"the code\")\n"
             "create table \"Order\" (id INTEGER PRIMARY KEY)\n"
             "create table Товары (id INTEGER PRIMARY KEY)\n"
             "create table \"in \"\"quotes\"\"\" (id INTEGER PRIMARY KEY)\n");
        QVERIFY(dbManage(u"data.sqlite"));
        QTest::keyClick(list(), Qt::Key_F5);
        QCOMPARE(list()->model()->index(0, 2).data().toString(), QString("1"));
        for (const char* const object : {"my goods", "Order", "Товары", "in \"quotes\""}) {
            QVERIFY(choose(object));
            QTest::keyClick(list(), Qt::Key_F4);
            QVERIFY(table(object) != nullptr);
        }
        QVERIFY2(boxes().isEmpty(), qPrintable(boxes().join('\n')));
        for (const char* const object :
             {"by code", "my goods", "Order", "Товары", "in \"quotes\""}) {
            QVERIFY(choose(object));
            host_.answers = {managerTest::Button::ok, managerTest::Button::ok};
            QTest::keyClick(list(), Qt::Key_Delete);
        }
        QVERIFY(shown(*list()).isEmpty());
        QVERIFY(rows("select name from sqlite_master").isEmpty());
        QCOMPARE(windows().size(), 1);
    }

    void keysStandInTheMenu() {
        make(goods);
        QVERIFY(dbManage(u"data.sqlite"));
        QVERIFY(choose("Goods_CODE"));
        QContextMenuEvent asked(QContextMenuEvent::Keyboard, {}, {});
        QApplication::sendEvent(list(), &asked);
        auto* const menu = list()->findChild<QMenu*>();
        QVERIFY(menu != nullptr && menu->isVisible());
        QStringList lines;
        for (const QAction* const action : menu->actions()) {
            lines.append(action->text() + "|" + action->shortcut().toString() +
                         (action->isEnabled() ? "" : "|not now"));
        }
        QCOMPARE(lines, QStringList({"Open|F4|not now", "Structure|Shift+F4", "Delete|Del",
                                     "Count rows|F5"}));
        QVERIFY(saveScreenshot(*menu, "manager-menu"));
        menu->actions().last()->trigger();
        menu->close();
        QTRY_COMPARE(list()->model()->index(0, 2).data().toString(), QString("3"));
    }

    void escClosesTheWindow() {
        make(goods);
        QVERIFY(dbManage(u"data.sqlite"));
        QVERIFY(QTest::qWaitForWindowActive(list()->window()));
        QTest::keyClick(list(), Qt::Key_Escape);
        QVERIFY(windows().isEmpty());
    }

    void escClosesASubWindowAndNothingElse() {
        make(goods);
        QMdiArea area;
        area.setObjectName("localMdiArea");
        area.resize(900, 600);
        area.show();
        QVERIFY(dbManage(u"data.sqlite"));
        QCOMPARE(area.subWindowList().size(), 1);
        QVERIFY(QTest::qWaitForWindowActive(&area));
        auto* const view = area.findChild<localDbManagerTableView*>();
        view->setFocus();
        QTest::keyClick(view, Qt::Key_Escape);
        QTRY_VERIFY(area.subWindowList().isEmpty());
        QVERIFY(area.isVisible());
    }

    // --- files

    void anEmptyNameIsTheDataFile() {
        make(goods);
        localDb::applicationSetDataFullFileName(localVclText(path("data.sqlite")));
        QVERIFY(dbManage(u""));
        QCOMPARE(shown(*list()).size(), 5);
    }

    void aMissingFileIsTold_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("file") << "missing.sqlite";
        QTest::newRow("folder") << ".";
        QTest::newRow("file in no folder") << "no/missing.sqlite";
    }
    void aMissingFileIsTold() {
        QFETCH(QString, name);
        QVERIFY(!dbManage(localVclText(name)));
        QCOMPARE(boxes(), QStringList({"warning [dbManage()] [Файл " + name + " не найден!]"}));
        QVERIFY(windows().isEmpty());
        QVERIFY(!QFile::exists(name) || QFileInfo(name).isDir());
    }

    void aFileThatIsNoneIsTold() {
        testFiles::write("data.sqlite", QByteArray(5000, 'x'));
        QVERIFY(!dbManage(u"data.sqlite"));
        QCOMPARE(boxes(), QStringList({notOpened("file is not a database")}));
        QVERIFY(windows().isEmpty());
        QCOMPARE(testFiles::read("data.sqlite"), QByteArray(5000, 'x'));
    }

    void aLockedFileIsTold() {
        make(goods);
        managerTest::otherConnection other("data.sqlite");
        QCOMPARE(other.run("begin exclusive"), QString());
        QVERIFY(!dbManage(u"data.sqlite"));
        QCOMPARE(boxes(), QStringList({notOpened("database is locked")}));
        QVERIFY(windows().isEmpty());
        QCOMPARE(other.run("rollback"), QString());
        QVERIFY(dbManage(u"data.sqlite"));
        QCOMPARE(boxes().size(), 1);
    }

    void aFileThatIsLockedLater() {
        make(goods);
        QVERIFY(dbManage(u"data.sqlite"));
        managerTest::otherConnection other("data.sqlite");
        QCOMPARE(other.run("begin exclusive"), QString());
        QTest::keyClick(list(), Qt::Key_F5);
        QCOMPARE(boxes().size(), 2);
        QVERIFY2(boxes()[0].contains("database is locked"), qPrintable(boxes()[0]));
        QCOMPARE(boxes()[1], "warning [dbObjectsGet] [" + head("dbObjectsGet") +
                                 "Ошибка при выполнении запроса: \n\nselect * from sqlite_master "
                                 ";]");
        // It shows what it showed.
        QCOMPARE(shown(*list()).size(), 5);
        QCOMPARE(list()->currentIndex().row(), 0);
        QCOMPARE(other.run("rollback"), QString());
        QTest::keyClick(list(), Qt::Key_F5);
        QCOMPARE(list()->model()->index(0, 2).data().toString(), QString("3"));
    }

    void windowsOfAnotherFileDoNothing() {
        make(goods);
        QVERIFY(dbManage(u"data.sqlite"));
        QVERIFY(choose("Goods"));
        dbTableBrowseShow(u"dbMain", u"Goods");
        localDbtQTableView* const first = table("Goods");
        localDbManagerTableView* const view = list();
        testFiles::write("second.sqlite", testFiles::read("data.sqlite"));
        QVERIFY(localDb::testDbInit(u"second.sqlite"));
        for (const int key : {Qt::Key_F4, Qt::Key_Delete, Qt::Key_F5}) {
            QTest::keyClick(view, Qt::Key(key));
        }
        QTest::keyClick(view, Qt::Key_F4, Qt::ShiftModifier);
        QTest::keyClick(first, Qt::Key_F4);
        QTest::keyClick(first, Qt::Key_Delete);
        QCOMPARE(boxes().size(), 6);
        for (const QString& box : boxes()) {
            QCOMPARE(box, "warning [dbManage()] [This window shows the file\n" +
                              QFileInfo("data.sqlite").absoluteFilePath() +
                              "\n\nConnection dbMain is open for another file now:\n" +
                              QFileInfo("second.sqlite").absoluteFilePath() + "]");
        }
        QCOMPARE(windows().size(), 2);
        // They are of use again with their own file.
        QVERIFY(localDb::testDbInit(u"data.sqlite"));
        QTest::keyClick(view, Qt::Key_F5);
        QCOMPARE(boxes().size(), 6);
    }

    // --- the picker

    void aTableIsChosen() {
        make(goods);
        QVERIFY(localDb::testDbInit(u"data.sqlite"));
        outputCapture output;
        const dialogAnswer answer([](QWidget* dialog) {
            QCOMPARE(dialog->windowTitle(), QString("Выбор таблицы из БД "));
            QVERIFY(saveScreenshot(*dialog, "manager-choose"));
            QTest::keyClick(dialog->focusWidget(), Qt::Key_Down);
            QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
        });
        QCOMPARE(dbTableChoose(u"dbMain"), std::u16string(u"Empty"));
        QVERIFY(answer.given());
        QVERIFY(output.text().contains("Accepted"));
    }

    void theSampleTableStandsForNone() {
        make("create table Ref03 (id INTEGER PRIMARY KEY)\ninsert into Ref03 values (7)\n");
        QVERIFY(localDb::testDbInit(u"data.sqlite"));
        outputCapture output;
        const dialogAnswer answer([](QWidget* dialog) { static_cast<QDialog*>(dialog)->reject(); });
        test09();
        QVERIFY(answer.given());
        QVERIFY(output.text().contains("Rejected"));
        QCOMPARE(shown(*table("Ref03")), QStringList({"7"}));
    }
};

QTEST_MAIN(manager)
#include "manager.moc"
