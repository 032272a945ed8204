// The rows of a table as the file holds them: reading on, looking at a record, deleting it.
#include <QAbstractItemModelTester>
#include <QLabel>
#include <QScrollBar>

#include "localVCL/text/localVclText.h"
#include "managerTest.h"

using managerTest::Button;
using managerTest::otherConnection;

namespace {

const QString goods = "create table Goods (id INTEGER PRIMARY KEY, code CHAR(9), price NUME)\n"
                      "insert into Goods values (1,'001',1.5),(2,'002',NULL),(7,'003',3)\n";

QString manyRows(int count) {
    return QString("create table T (id INTEGER PRIMARY KEY, n INT, name CHAR(20))\n"
                   "with recursive x(n) as (select 1 union all select n+1 from x limit %1) "
                   "insert into T select n, n*2, 'row '||n from x\n")
        .arg(count);
}

const QString recordHead = "information [localDbTableView::activatedSlot()] "
                           "[<B>localDbTableView::activatedSlot()</B> <BR/><BR/>";

}  // namespace

class managerTable : public managerTest::test {
    Q_OBJECT

private:
    static localDbtQTableView* open(const QString& name) {
        if (!localDb::testDbInit(u"data.sqlite")) {
            return nullptr;
        }
        dbTableBrowseShow(u"dbMain", localVclText(name));
        return table(name);
    }
    static QModelIndex at(localDbtQTableView* view, int row, int column = 0) {
        return view->model()->index(row, column);
    }
    static QString text(localDbtQTableView* view, int row, int column) {
        return at(view, row, column).data().toString();
    }

private slots:
    // --- opening

    void showsAllColumns() {
        make(goods);
        localDbtQTableView* const view = open("Goods");
        QVERIFY(view != nullptr);
        QCOMPARE(view->window()->windowTitle(), QString("Goods.dbMain"));
        QCOMPARE(shown(*view), QStringList({"1|001|1.5", "2|002|NULL", "7|003|3"}));
        QCOMPARE(view->model()->headerData(1, Qt::Horizontal).toString(), QString("code"));
        QCOMPARE(view->currentIndex(), at(view, 0));
        QVERIFY(boxes().isEmpty());
        QVERIFY(saveScreenshot(*view->window(), "manager-table"));
    }

    void aTableWithoutRows() {
        make("create table Empty (id INTEGER PRIMARY KEY)\n");
        localDbtQTableView* const view = open("Empty");
        for (const int key : {Qt::Key_F4, Qt::Key_Delete, Qt::Key_Return, Qt::Key_End}) {
            QTest::keyClick(view, Qt::Key(key));
        }
        QTest::keyClick(view, Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(view->model()->rowCount(), 0);
        QCOMPARE(view->model()->columnCount(), 1);
        QVERIFY(boxes().isEmpty());
    }

    void aTableThatCannotBeReadIsTold() {
        make(goods);
        QVERIFY(localDb::testDbInit(u"data.sqlite"));
        QVERIFY(dbTableBrowseShow(u"dbMain", u"Nothing") == nullptr);
        QCOMPARE(boxes(),
                 QStringList({"warning [Warning] [dbManagelocalDb::dbTableBrowse() Unable to "
                              "execute statement/nno such table: Nothing]"}));
        QVERIFY(windows().isEmpty());
    }

    void anUnknownConnectionIsTold() {
        QVERIFY(dbTableBrowse(u"nobody", u"Goods") == nullptr);
        QCOMPARE(boxes(), QStringList({"warning [localDb::dbTableBrowse()] [nobody not found!]"}));
    }

    void aLockedFileIsTold() {
        make(goods);
        QVERIFY(localDb::testDbInit(u"data.sqlite"));
        otherConnection other("data.sqlite");
        QCOMPARE(other.run("begin exclusive"), QString());
        QVERIFY(dbTableBrowseShow(u"dbMain", u"Goods") == nullptr);
        QCOMPARE(boxes().size(), 1);
        QVERIFY2(boxes()[0].contains("database is locked"), qPrintable(boxes()[0]));
    }

    // --- reading on

    void readsAsFarAsSomebodyLooks() {
        make(manyRows(5000));
        localDbtQTableView* const view = open("T");
        QCOMPARE(view->model()->rowCount(), 255);
        QVERIFY(view->model()->canFetchMore({}));
        // At the end of what is read the person goes on from the same row.
        view->setCurrentIndex(at(view, 254, 2));
        QTest::qWait(20);
        QCOMPARE(view->model()->rowCount(), 510);
        QCOMPARE(view->currentIndex(), at(view, 254, 2));
        QVERIFY(view->visualRect(view->currentIndex()).intersects(view->viewport()->rect()));
        QTest::keyClick(view, Qt::Key_Down);
        QCOMPARE(text(view, view->currentIndex().row(), 2), QString("row 256"));
    }

    void numbersOfRowsAroundTheFirstReading_data() {
        QTest::addColumn<int>("count");
        for (const int count : {1, 254, 255, 256, 509, 510, 511, 5000}) {
            QTest::newRow(qPrintable(QString::number(count))) << count;
        }
    }
    void numbersOfRowsAroundTheFirstReading() {
        QFETCH(int, count);
        make(manyRows(count));
        localDbtQTableView* const view = open("T");
        const QAbstractItemModelTester tester(view->model());
        QTest::keyClick(view, Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(view->model()->rowCount(), count);
        QVERIFY(!view->model()->canFetchMore({}));
        QCOMPARE(view->currentIndex(), at(view, count - 1, 2));
        for (int row = 0; row < count; ++row) {
            QCOMPARE(text(view, row, 2), "row " + QString::number(row + 1));
        }
        QVERIFY(boxes().isEmpty());
        QVERIFY(QApplication::overrideCursor() == nullptr);
    }

    void ctrlPageDownReadsAll() {
        make(manyRows(2000));
        localDbtQTableView* const view = open("T");
        QTest::keyClick(view, Qt::Key_PageDown);
        QVERIFY(view->model()->rowCount() < 2000);
        QTest::keyClick(view, Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(view->model()->rowCount(), 2000);
    }

    void othersMayWriteWhileTheWindowStands() {
        make(manyRows(5000));
        localDbtQTableView* const view = open("T");
        QVERIFY(view->model()->canFetchMore({}));
        QCOMPARE(otherConnection("data.sqlite").run("update T set n=0 where id=300"), QString());
        QSqlQuery drop(localDbConnection::database(u"dbMain"));
        QVERIFY(drop.exec("create table B (id INT)"));
        QVERIFY2(drop.exec("drop table B"), qPrintable(drop.lastError().text()));
    }

    void aTableThatGoesMeanwhile() {
        make(manyRows(5000));
        localDbtQTableView* const view = open("T");
        QCOMPARE(otherConnection("data.sqlite").run("drop table T"), QString());
        QTest::keyClick(view, Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(view->model()->rowCount(), 0);
        QVERIFY(!view->model()->canFetchMore({}));
        QTest::keyClick(view, Qt::Key_F4);
    }

    // --- keys

    void functionKeysTellTheirNumber() {
        make(goods);
        localDbtQTableView* const view = open("Goods");
        QStringList wanted;
        for (int number = 1; number <= 12; ++number) {
            if (number != 4) {
                QTest::keyClick(view, Qt::Key(Qt::Key_F1 + number - 1));
                wanted.append("warning [localDbTableView::keyPressEvent] [keyPress код F" +
                              QString::number(number) + "]");
            }
        }
        QTest::keyClick(view, Qt::Key_F4, Qt::ShiftModifier);
        QTest::keyClick(view, Qt::Key_F4, Qt::MetaModifier);
        wanted += QStringList(2, "warning [localDbTableView::keyPressEvent] [keyPress код F4]");
        QCOMPARE(boxes(), wanted);
    }

    void keysStandInTheMenu() {
        make(manyRows(1000));
        localDbtQTableView* const view = open("T");
        QContextMenuEvent asked(QContextMenuEvent::Mouse, {30, 30}, {300, 300});
        QApplication::sendEvent(view->viewport(), &asked);
        auto* const menu = view->findChild<QMenu*>();
        QVERIFY(menu != nullptr);
        QStringList lines;
        for (const QAction* const action : menu->actions()) {
            lines.append(action->text() + "|" + action->shortcut().toString());
        }
        QCOMPARE(lines,
                 QStringList({"Show record|F4", "Delete record|Del", "Read to the end|Ctrl+End"}));
        menu->actions().last()->trigger();
        menu->close();
        QTRY_COMPARE(view->currentIndex().row(), 999);
        QVERIFY(view->window()->findChild<QLabel*>("hint")->text().startsWith("F4 shows"));
    }

    // --- the record view

    void showsTheFieldsOfARecord_data() {
        QTest::addColumn<int>("key");
        QTest::newRow("F4") << int(Qt::Key_F4);
        QTest::newRow("Return") << int(Qt::Key_Return);
    }
    void showsTheFieldsOfARecord() {
        QFETCH(int, key);
        make(goods);
        localDbtQTableView* const view = open("Goods");
        view->setCurrentIndex(at(view, 1, 2));
        QTest::keyClick(view, Qt::Key(key));
        QCOMPARE(boxes(),
                 QStringList({recordHead + "fieldName: id fieldType: INT fieldValue: |2|<BR/>"
                                           "fieldName: code fieldType: CHAR fieldValue: |002|<BR/>"
                                           "fieldName: price fieldType: unkn fieldValue: |NULL|"
                                           "<BR/>] html"}));
    }

    void theRecordOnTheScreen() {
        make(goods);
        localDbtQTableView* const view = open("Goods");
        localVclHost real;
        localHost::install(&real);
        const dialogAnswer answer([](QWidget* dialog) {
            QVERIFY(saveScreenshot(*dialog, "manager-record"));
            static_cast<QDialog*>(dialog)->accept();
        });
        QTest::keyClick(view, Qt::Key_F4);
        localHost::install(&host_);
        QVERIFY(answer.given());
    }

    void markupAndLongTextsAreShownAsTheyAre() {
        make("create table A (id INTEGER PRIMARY KEY, a CHAR(9), b CHAR(9))\n"
             "insert into A values (1, '<B>&amp;', '" +
             QString(600, 'x') + "')\n");
        localDbtQTableView* const view = open("A");
        QTest::keyClick(view, Qt::Key_F4);
        QCOMPARE(boxes().size(), 1);
        QVERIFY(boxes()[0].contains("fieldValue: |&lt;B&gt;&amp;amp;|"));
        QVERIFY(boxes()[0].contains("|" + QString(507, 'x') + "...|"));
        QCOMPARE(text(view, 0, 1), QString("<B>&amp;"));
    }

    void lookingChangesNothing_data() {
        QTest::addColumn<QString>("declared");
        QTest::addColumn<QString>("value");
        for (const QString type :
             {"", "CHAR(20)", "INT", "NUME(12,2)", "NUMERIC", "REAL", "BLOB"}) {
            for (const QString value : {"NULL",
                                        "''",
                                        "' two  blanks '",
                                        "'it''s'",
                                        "'001'",
                                        "'1e5'",
                                        "'inf'",
                                        "'😀 Ёё'",
                                        "x'00ff10'",
                                        "x''",
                                        "cast(x'41ff42' as text)",
                                        "cast(x'610062' as text)",
                                        "5",
                                        "-5",
                                        "9223372036854775807",
                                        "5.0",
                                        "0.1+0.2",
                                        "1e300",
                                        "1e-300",
                                        "9e999",
                                        "-9e999",
                                        "1e15",
                                        "123456789012345678.0",
                                        "'NULL'",
                                        "char(10)||'a'||char(13)",
                                        "'a'';--'"}) {
                QTest::newRow(qPrintable(type + " " + value)) << type << value;
            }
        }
    }
    void lookingChangesNothing() {
        QFETCH(QString, declared);
        QFETCH(QString, value);
        make("create table A (id INTEGER PRIMARY KEY, a " + declared +
             ", b CHAR(5))\ninsert into A values (3, " + value + ", 'b'),(4, 1, 'c')\n");
        const QString asHeld = "select id, quote(a), typeof(a), hex(cast(a as blob)), b from A";
        const QStringList before = rows(asHeld);
        localDbtQTableView* const view = open("A");
        QTest::keyClick(view, Qt::Key_F4);
        QCOMPARE(rows(asHeld), before);
        QCOMPARE(boxes().size(), 1);
    }

    void whatComesBackIsWrittenBack() {
        // A trigger sees it.
        make("create table A (id INTEGER PRIMARY KEY, a CHAR(9), b INT, c BLOB, d CHAR(9), "
             "e INT GENERATED ALWAYS AS (b+1))\n"
             "create table Told (what CHAR(99))\n"
             "create trigger T after update of a, b on A begin insert into Told values "
             "(old.id||new.a||new.b); end\n"
             "create trigger U after update of c, d on A begin insert into Told values "
             "('no'); end\n"
             "insert into A (id, a, b, c, d) values (3, 'it''s', 8, x'00', NULL),"
             "(4, 'x', 9, NULL, NULL)\n");
        localDbtQTableView* const view = open("A");
        QTest::keyClick(view, Qt::Key_F4);
        QCOMPARE(rows("select what from Told"), QStringList({"3it's8"}));
        QCOMPARE(boxes().size(), 1);
    }

    void whatOthersWriteMeanwhileStays() {
        make(goods);
        localDbtQTableView* const view = open("Goods");
        class writing : public boxRecordingHost<localVclHost> {
        public:
            Button report(const localReport& report) override {
                fault = otherConnection("data.sqlite")
                            .run("update Goods set code='new', price=9 where id=1");
                return boxRecordingHost::report(report);
            }
            QString fault = "not asked";
        };
        {
            writing host;
            QTest::keyClick(view, Qt::Key_F4);
            QCOMPARE(host.fault, QString());
        }
        QCOMPARE(rows("select code, price from Goods where id=1"), QStringList({"new|9"}));
    }

    void aRecordThatHasGone() {
        make(goods);
        localDbtQTableView* const view = open("Goods");
        QCOMPARE(otherConnection("data.sqlite").run("delete from Goods where id=2"), QString());
        view->setCurrentIndex(at(view, 1));
        QTest::keyClick(view, Qt::Key_F4);
        QCOMPARE(boxes(), QStringList({"warning [localDbTableView::activatedSlot()] [The record 2 "
                                       "is not in the table any more.]"}));
        QCOMPARE(shown(*view), QStringList({"1|001|1.5", "7|003|3"}));
    }

    void aTableWithoutTheColumnId() {
        make("create table A (n INT, t CHAR(9))\ninsert into A values (5,'five')\n");
        localDbtQTableView* const view = open("A");
        QTest::keyClick(view, Qt::Key_F4);
        QCOMPARE(boxes().size(), 2);
        QVERIFY(boxes()[0].contains("no such column: id"));
        forget();
        host_.answers = {Button::ok, Button::ok, Button::ok};
        QTest::keyClick(view, Qt::Key_Delete);
        QCOMPARE(boxes().size(), 3);
        QCOMPARE(rows("select * from A"), QStringList({"5|five"}));
    }

    void theIdNeedNotBeTheFirstColumn() {
        make("create table A (n INT, id INTEGER PRIMARY KEY)\ninsert into A values (1,2),(2,1)\n");
        localDbtQTableView* const view = open("A");
        // The rows come in the order of the key.
        QCOMPARE(shown(*view), QStringList({"2|1", "1|2"}));
        host_.answers = {Button::ok};
        QTest::keyClick(view, Qt::Key_Delete);
        QCOMPARE(rows("select * from A"), QStringList({"1|2"}));
    }

    void anIdThatIsNoNumber_data() {
        QTest::addColumn<QString>("id");
        QTest::newRow("text") << "'abc'";
        QTest::newRow("fraction") << "1.5";
        QTest::newRow("NULL") << "NULL";
    }
    void anIdThatIsNoNumber() {
        QFETCH(QString, id);
        make("create table A (id, n INT)\ninsert into A values (" + id + ",1),(0,2),(2,3)\n");
        localDbtQTableView* const view = open("A");
        QTest::keyClick(view, Qt::Key_F4);
        QTest::keyClick(view, Qt::Key_Delete);
        QCOMPARE(boxes(), QStringList(2, "warning [localDbTableView::activatedSlot()] [The record "
                                         "has no number in the column id.]"));
        QCOMPARE(rows("select n from A"), QStringList({"1", "2", "3"}));
    }

    // --- deleting

    void aRecordIsDeletedAfterTheQuestion() {
        make(goods);
        localDbtQTableView* const view = open("Goods");
        dbTableBrowseShow(u"dbMain", u"Goods");
        view->setCurrentIndex(at(view, 1, 2));
        QTest::keyClick(view, Qt::Key_Delete);
        const QString question = "question [localDb::dbtRecordDelete()] [Record will be deleted. "
                                 "<BR/> Are you sure? ] ok *cancel html";
        QCOMPARE(boxes(), QStringList({question}));
        QCOMPARE(rows("select count(*) from Goods"), QStringList({"3"}));
        host_.answers = {Button::ok};
        QTest::keyClick(view, Qt::Key_Delete);
        QCOMPARE(boxes(), QStringList({question, question}));
        QCOMPARE(rows("select id from Goods"), QStringList({"1", "7"}));
        // All windows on the table show it.
        for (QWidget* const each : windows()) {
            QCOMPARE(shown(*each->findChild<localDbtQTableView*>()),
                     QStringList({"1|001|1.5", "7|003|3"}));
        }
        QCOMPARE(view->currentIndex(), at(view, 1, 2));
    }

    void theLastRecordIsDeleted() {
        make("create table A (id INTEGER PRIMARY KEY)\ninsert into A values (1)\n");
        localDbtQTableView* const view = open("A");
        host_.answers = {Button::ok};
        QTest::keyClick(view, Qt::Key_Delete);
        QCOMPARE(view->model()->rowCount(), 0);
        QTest::keyClick(view, Qt::Key_Delete);
        QCOMPARE(boxes().size(), 1);
    }

    void aRecordFarDownIsDeleted() {
        make(manyRows(1000));
        localDbtQTableView* const view = open("T");
        QTest::keyClick(view, Qt::Key_End, Qt::ControlModifier);
        view->setCurrentIndex(at(view, 700, 1));
        view->scrollTo(view->currentIndex(), QAbstractItemView::PositionAtCenter);
        const int scrolled = view->verticalScrollBar()->value();
        host_.answers = {Button::ok};
        QTest::keyClick(view, Qt::Key_Delete);
        QCOMPARE(view->model()->rowCount(), 999);
        QCOMPARE(view->currentIndex(), at(view, 700, 1));
        QCOMPARE(text(view, 700, 2), QString("row 702"));
        QCOMPARE(view->verticalScrollBar()->value(), scrolled);
    }

    void aRecordThatCannotBeDeletedStays() {
        make("create table A (id INTEGER PRIMARY KEY)\ninsert into A values (1)\n"
             "create trigger No before delete on A begin select raise(abort, 'kept'); end\n");
        localDbtQTableView* const view = open("A");
        host_.answers = {Button::ok, Button::ok, Button::ok};
        QTest::keyClick(view, Qt::Key_Delete);
        QCOMPARE(boxes().size(), 3);
        QVERIFY(boxes()[1].contains("kept"));
        QVERIFY2(boxes()[2].contains(" Unable to delete record from table \n"),
                 qPrintable(boxes()[2]));
        QCOMPARE(shown(*view), QStringList({"1"}));
    }
};

QTEST_MAIN(managerTable)
#include "managerTable.moc"
