// The structure dialog: fields changed by rebuilding the table, indexes at once, and what goes with
// an old table.
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTextBrowser>

#include "localDbVcl/manager/localModiStruDialog.h"
#include "managerTest.h"

using managerTest::Button;
using managerTest::otherConnection;

namespace {

const QString goods =
    "create table Goods (id INTEGER PRIMARY KEY AUTOINCREMENT, code CHAR(9), descr CHAR(40), "
    "price NUMERIC(12))\n"
    "insert into Goods values (1,'001','Nail',1.5),(2,'002',NULL,2),(7,'003','Lock',3)\n";

enum Column { name, type, length, decimals };

// The parts of an open structure dialog.
struct Dialog {
    explicit Dialog(QWidget* widget) : dialog(qobject_cast<localModiStruDialog*>(widget)) {
        tabs = dialog->findChild<QTabWidget*>();
        fields = tabs->widget(0)->findChild<QTableWidget*>();
        indexes = tabs->widget(1)->findChild<QTableWidget*>();
    }
    QPushButton* button(const QString& text) const {
        for (QPushButton* const each : dialog->findChildren<QPushButton*>()) {
            if (each->text().remove('&') == text) {
                return each;
            }
        }
        return nullptr;
    }
    void click(const QString& text) const { QTest::mouseClick(button(text), Qt::LeftButton); }
    void ok() const { click("OK"); }
    void cancel() const { click("Cancel"); }
    void put(int row, int column, const QVariant& value) const {
        if (auto* const box = qobject_cast<QComboBox*>(fields->cellWidget(row, column))) {
            box->setCurrentText(value.toString());
        } else {
            fields->item(row, column)->setData(Qt::EditRole, value);
        }
    }
    static QStringList rowsOf(const QTableWidget& table) {
        QStringList all;
        for (int row = 0; row < table.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < table.columnCount(); ++column) {
                const auto* const box =
                    qobject_cast<const QComboBox*>(table.cellWidget(row, column));
                cells.append(box != nullptr ? box->currentText() : table.item(row, column)->text());
            }
            all.append(cells.join('|'));
        }
        return all;
    }

    localModiStruDialog* dialog;
    QTabWidget* tabs;
    QTableWidget* fields;
    QTableWidget* indexes;
};

}  // namespace

class managerStructure : public managerTest::test {
    Q_OBJECT

private:
    using Act = std::function<void(const Dialog&)>;

    // Opens the dialog by its key on an object of the file and acts in it. Whether it came.
    bool change(const QString& object, const Act& act) {
        if (list() == nullptr && !dbManage(u"data.sqlite")) {
            return false;
        }
        if (!choose(object)) {
            return false;
        }
        const dialogAnswer answer([&](QWidget* widget) { act(Dialog(widget)); });
        QTest::keyClick(list(), Qt::Key_F4, Qt::ShiftModifier);
        return answer.given();
    }
    static QString declaration(const QString& object = "Goods") {
        return rows("select sql from sqlite_master where name='" + object + "'").value(0);
    }
    // What a rebuild tells when nothing goes wrong.
    static QStringList rebuilt(const QString& targets, const QString& sources) {
        return {"about [dbtAlter] [" + htmlHead("dbtAlter") + "INSERT INTO  tmp1(" + targets +
                    ") SELECT " + sources + " FROM Goods;] html",
                "information [dbtDelete] [" + htmlHead("dbtDelete") +
                    " Table Goods from dbMain deleted successfully  !] html",
                "information [dbtRename] [" + htmlHead("dbtRename") +
                    " Table  tmp1 in dbMain renamed to  Goods successfully!] html"};
    }
    static QString question(const QString& text, const QString& buttons) {
        return "question [dbtAlter] [Table Goods will be built anew.\n" + text + "] " + buttons;
    }

private slots:
    // --- what it shows

    void showsFieldsIndexesAndDeclaration() {
        make(goods + "create index Goods_CODE on Goods (code, descr)\n"
                     "create unique index Other on Goods (price)\n");
        QVERIFY(change("Goods", [](const Dialog& dialog) {
            QCOMPARE(dialog.dialog->windowTitle(), QString("Goods"));
            QCOMPARE(dialog.tabs->count(), 3);
            QCOMPARE(dialog.tabs->tabText(0), QString("Fields"));
            QCOMPARE(dialog.tabs->tabText(1), QString("Indexes"));
            QCOMPARE(dialog.tabs->tabText(2), QString("Table"));
            QCOMPARE(Dialog::rowsOf(*dialog.fields),
                     QStringList({"id|INTEGER|18|0", "code|CHAR|9|0", "descr|CHAR|40|0",
                                  "price|NUMERIC|12|0"}));
            const auto* const box = qobject_cast<QComboBox*>(dialog.fields->cellWidget(1, type));
            QStringList offered;
            for (int i = 0; i < box->count(); ++i) {
                offered.append(box->itemText(i));
            }
            QCOMPARE(offered, QStringList({"CHAR", "INT", "NUMERIC"}));
            QVERIFY(saveScreenshot(*dialog.dialog, "manager-fields"));
            dialog.tabs->setCurrentIndex(1);
            QCOMPARE(Dialog::rowsOf(*dialog.indexes),
                     QStringList({"Goods_CODE|code, descr|", "Other|price|"}));
            QVERIFY(saveScreenshot(*dialog.dialog, "manager-indexes"));
            dialog.tabs->setCurrentIndex(2);
            const QString text = dialog.dialog->findChild<QTextBrowser*>()->toPlainText();
            QVERIFY2(text.contains("список полей в Fd"), qPrintable(text));
            QVERIFY2(text.contains("CREATE TABLE Goods (id INTEGER"), qPrintable(text));
            QVERIFY(saveScreenshot(*dialog.dialog, "manager-declaration"));
            dialog.cancel();
        }));
        QVERIFY(boxes().isEmpty());
        QCOMPARE(windows().size(), 1);
    }

    void aDumpOfFields() {
        const localDb::Fields fields = {{}, {u"a<b", u"CHAR", 40, 0}, {u"price", u"NUME", 12, 2}};
        QCOMPARE(QString::fromStdU16String(dbFieldsDump(fields)),
                 QString("<B> список полей в Fd</B> <BR/><BR/><B>id</B>  INTEGER  18  0<BR/>"
                         "<B>a&lt;b</B>  CHAR  40  0<BR/><B>price</B>  NUME  12  2<BR/>"));
    }

    void aTypeOfAnotherWordIsMarkedInTheTitle_data() {
        QTest::addColumn<QString>("declared");
        QTest::addColumn<bool>("marked");
        QTest::newRow("CHAR") << "CHAR(5)" << false;
        QTest::newRow("INT") << "INT" << false;
        QTest::newRow("INTEGER") << "INTEGER" << true;
        QTest::newRow("VARCHAR") << "VARCHAR(5)" << true;
        QTest::newRow("TEXT") << "TEXT" << true;
    }
    void aTypeOfAnotherWordIsMarkedInTheTitle() {
        QFETCH(QString, declared);
        QFETCH(bool, marked);
        make("create table A (id INTEGER PRIMARY KEY, a " + declared + ")\n");
        QVERIFY(change("A", [&](const Dialog& dialog) {
            QCOMPARE(dialog.dialog->windowTitle(), QString(marked ? "[ * ] A" : "A"));
            dialog.cancel();
        }));
    }

    void whatIsNoTableIsOnlyLookedAt_data() {
        QTest::addColumn<QString>("object");
        for (const QString object : {"Dear", "Goods_CODE", "Told", "sqlite_sequence"}) {
            QTest::newRow(qPrintable(object)) << object;
        }
    }
    void whatIsNoTableIsOnlyLookedAt() {
        QFETCH(QString, object);
        make(goods + "create view Dear as select id, cast(code as integer) as n from Goods\n"
                     "create index Goods_CODE on Goods (code)\n"
                     "create trigger Told after delete on Goods begin select 1; end\n");
        const QStringList before = rows("select * from sqlite_master");
        QVERIFY(change(object, [&](const Dialog& dialog) {
            QVERIFY(dialog.dialog->windowTitle().endsWith(object));
            QVERIFY(!dialog.button("Add")->isVisible());
            dialog.ok();
        }));
        QVERIFY(boxes().isEmpty());
        QCOMPARE(rows("select * from sqlite_master"), before);
    }

    // --- changing fields

    void okWithoutChangesDoesNothing() {
        make(goods);
        QVERIFY(change("Goods", [](const Dialog& dialog) { dialog.ok(); }));
        QVERIFY(boxes().isEmpty());
        QVERIFY(declaration().startsWith("CREATE TABLE Goods (id INTEGER PRIMARY KEY AUTO"));
    }

    void okWithoutChangesRewritesATableOfOtherWords() {
        make("create table Goods (id INTEGER PRIMARY KEY AUTOINCREMENT, n INTEGER, t VARCHAR(7))\n"
             "insert into Goods values (3, 4, 'four')\n");
        QVERIFY(change("Goods", [](const Dialog& dialog) { dialog.ok(); }));
        QCOMPARE(boxes(), rebuilt("id, n, t", "id, n, t"));
        QCOMPARE(declaration(), QString("CREATE TABLE \"Goods\" (id INTEGER PRIMARY KEY "
                                        "AUTOINCREMENT , n INT(24), t CHAR(7))"));
        QCOMPARE(rows("select * from Goods"), QStringList({"3|4|four"}));
    }

    void aFieldIsRenamedAndMadeLonger() {
        make(goods);
        QVERIFY(change("Goods", [](const Dialog& dialog) {
            dialog.put(1, name, "artikul");
            dialog.put(2, length, 100);
            dialog.put(3, type, "INT");
            dialog.ok();
        }));
        QCOMPARE(boxes(), rebuilt("id, artikul, descr, price", "id, code, descr, price"));
        QCOMPARE(declaration(),
                 QString("CREATE TABLE \"Goods\" (id INTEGER PRIMARY KEY AUTOINCREMENT , artikul "
                         "CHAR(9), descr CHAR(100), price INT(12))"));
        QCOMPARE(rows("select artikul, descr, price from Goods"),
                 QStringList({"001|Nail|1.5", "002||2", "003|Lock|3"}));
        // The list shows the table as it is now.
        QVERIFY(shown(*list()).last().contains("artikul"));
        QCOMPARE(list()->currentIndex().siblingAtColumn(1).data().toString(), QString("Goods"));
    }

    void fieldsAreAddedTakenOutAndMoved() {
        make(goods);
        QVERIFY(change("Goods", [](const Dialog& dialog) {
            dialog.fields->setCurrentCell(0, name);
            QVERIFY(!dialog.button("Remove")->isEnabled());
            QVERIFY(!dialog.button("Down")->isEnabled());
            dialog.fields->setCurrentCell(1, name);
            QVERIFY(!dialog.button("Up")->isEnabled());
            dialog.click("Remove");
            QCOMPARE(dialog.fields->currentRow(), 1);
            dialog.click("Down");
            dialog.click("Add");
            QTest::keyClicks(dialog.fields->viewport()->findChild<QLineEdit*>(), "stock room");
            QVERIFY(saveScreenshot(*dialog.dialog, "manager-add"));
            dialog.ok();
        }));
        QCOMPARE(boxes(), rebuilt("id, price, descr, \"stock room\"", "id, price, descr, NULL"));
        QCOMPARE(declaration(),
                 QString("CREATE TABLE \"Goods\" (id INTEGER PRIMARY KEY AUTOINCREMENT , price "
                         "NUMERIC(12), descr CHAR(40), \"stock room\" CHAR(40))"));
        QCOMPARE(rows("select * from Goods"), QStringList({"1|1.5|Nail|", "2|2||", "7|3|Lock|"}));
    }

    void onlyAnotherOrderIsAChange() {
        make(goods);
        QVERIFY(change("Goods", [](const Dialog& dialog) {
            dialog.fields->setCurrentCell(3, name);
            dialog.click("Up");
            dialog.ok();
        }));
        QCOMPARE(boxes(), rebuilt("id, code, price, descr", "id, code, price, descr"));
    }

    void theKeyStaysAsItIs() {
        make(goods);
        QVERIFY(change("Goods", [](const Dialog& dialog) {
            for (int column = 0; column < dialog.fields->columnCount(); ++column) {
                QVERIFY(!(dialog.fields->item(0, column)->flags() & Qt::ItemIsEditable));
            }
            QVERIFY(dialog.fields->cellWidget(0, type) == nullptr);
            dialog.cancel();
        }));
    }

    void aTableWithoutTheKeyGetsOne() {
        make("create table Goods (n INT)\ninsert into Goods values (8),(9)\n");
        QVERIFY(change("Goods", [](const Dialog& dialog) {
            dialog.put(0, name, "m");
            dialog.ok();
        }));
        QCOMPARE(rows("select id, m from Goods"), QStringList({"1|8", "2|9"}));
    }

    void aListThatIsNoTablesIsTold_data() {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("fault");
        QTest::newRow("no name") << int(name) << "  "
                                 << "A field has no name.";
        QTest::newRow("a name twice") << int(name) << "DESCR"
                                      << "Two fields have the name descr.";
        QTest::newRow("the key's name") << int(name) << "ID"
                                        << "Two fields have the name ID.";
        QTest::newRow("a quote") << int(name) << "a\"b"
                                 << "The name a\"b cannot stand in a statement.";
    }
    void aListThatIsNoTablesIsTold() {
        QFETCH(int, column);
        QFETCH(QString, value);
        QFETCH(QString, fault);
        make(goods);
        const QString before = declaration();
        QVERIFY(change("Goods", [&](const Dialog& dialog) {
            dialog.put(1, column, value);
            dialog.tabs->setCurrentIndex(1);
            dialog.ok();
            QVERIFY(dialog.dialog->isVisible());
            QCOMPARE(dialog.tabs->currentIndex(), 0);
            dialog.cancel();
        }));
        QCOMPARE(boxes(), QStringList({"warning [Goods] [" + fault + "]"}));
        QCOMPARE(declaration(), before);
    }

    void aTypeOfNobodyIsChosenFirst() {
        make("create table Goods (id INTEGER PRIMARY KEY, t TEXT, r REAL)\n"
             "insert into Goods values (1,'text',2.5)\n");
        QVERIFY(change("Goods", [](const Dialog& dialog) {
            dialog.ok();
            dialog.put(1, type, "CHAR");
            dialog.ok();
            dialog.put(2, type, "NUMERIC");
            dialog.ok();
        }));
        QCOMPARE(boxes().mid(0, 2),
                 QStringList({"warning [Goods] [The field t has no type: choose one.]",
                              "warning [Goods] [The field r has no type: choose one.]"}));
        QCOMPARE(rows("select * from Goods"), QStringList({"1|text|2.5"}));
    }

    void theWheelChangesNoType() {
        make(goods);
        QVERIFY(change("Goods", [](const Dialog& dialog) {
            QWidget* const box = dialog.fields->cellWidget(1, type);
            box->setFocus();
            QWheelEvent wheel({5, 5}, box->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {},
                              Qt::NoScrollPhase, false);
            QApplication::sendEvent(box, &wheel);
            QCOMPARE(qobject_cast<QComboBox*>(box)->currentText(), QString("CHAR"));
            dialog.cancel();
        }));
    }

    void returnInTheListBeginsNoRebuild() {
        make("create table Goods (id INTEGER PRIMARY KEY, n INTEGER)\n");
        QVERIFY(change("Goods", [](const Dialog& dialog) {
            dialog.fields->setCurrentCell(1, length);
            QTest::keyClick(dialog.fields, Qt::Key_Return);
            QVERIFY(dialog.dialog->isVisible());
            dialog.cancel();
        }));
        QVERIFY(boxes().isEmpty());
    }

    // --- what goes with the old table

    void indexesAreNamedAndMadeAnew() {
        make(goods + "create index Goods_CODE on Goods (code desc, descr collate nocase)\n"
                     "create unique index \"by price\" on Goods (price)\n"
                     "create index Some on Goods (descr) where price>1\n"
                     "create trigger Told after delete on Goods begin select 1; end\n");
        host_.answers = {Button::yes, Button::ok, Button::ok, Button::ok};
        QVERIFY(change("Goods", [](const Dialog& dialog) {
            dialog.put(1, name, "the code");
            dialog.ok();
        }));
        QCOMPARE(boxes(), QStringList({question("\nThese go with the old table:\nindex Goods_CODE\n"
                                                "index by price\nindex Some\ntrigger Told\n\n"
                                                "Make them anew?",
                                                "*yes no cancel")}) +
                              rebuilt("id, \"the code\", descr, price", "id, code, descr, price"));
        QCOMPARE(declaration("Goods_CODE"),
                 QString("CREATE INDEX Goods_CODE on Goods (\"the code\" collate BINARY desc, "
                         "descr collate nocase)"));
        QCOMPARE(declaration("by price"),
                 QString("CREATE UNIQUE INDEX \"by price\" on Goods (price)"));
        QCOMPARE(declaration("Some"), QString("CREATE INDEX Some on Goods (descr) where price>1"));
        QCOMPARE(declaration("Told"),
                 QString("CREATE TRIGGER Told after delete on Goods begin select 1; end"));
    }

    void indexesAreLeftAway() {
        make(goods + "create index Goods_CODE on Goods (code)\n");
        host_.answers = {Button::no, Button::ok, Button::ok, Button::ok};
        QVERIFY(change("Goods", [](const Dialog& dialog) {
            dialog.put(2, length, 50);
            dialog.ok();
        }));
        QCOMPARE(boxes().size(), 4);
        QVERIFY(declaration().contains("CHAR(50)"));
        QCOMPARE(rows("select count(*) from sqlite_master where type='index'"), QStringList({"0"}));
    }

    void aRebuildIsCalledOff() {
        make(goods + "create index Goods_CODE on Goods (code)\n");
        const QStringList before = rows("select * from sqlite_master");
        host_.answers = {Button::cancel};
        QVERIFY(change("Goods", [](const Dialog& dialog) {
            dialog.put(2, length, 50);
            dialog.ok();
        }));
        QCOMPARE(boxes().size(), 1);
        QCOMPARE(rows("select * from sqlite_master"), before);
    }

    void whatCannotComeBackIsNamed() {
        make("create table Goods (id INTEGER PRIMARY KEY, code CHAR(9) NOT NULL UNIQUE, descr "
             "CHAR(40) default 'x', price NUMERIC(12, 2))\n"
             "create index Goods_DESCR on Goods (descr, price)\n");
        const QStringList before = rows("select * from sqlite_master");
        QVERIFY(change("Goods", [](const Dialog& dialog) {
            dialog.fields->setCurrentCell(2, name);
            dialog.click("Remove");
            dialog.ok();
        }));
        QCOMPARE(boxes(), QStringList({question("\nNot kept of its declaration: decimals, NOT "
                                                "NULL, DEFAULT, UNIQUE\n\nGone for good:\n"
                                                "index sqlite_autoindex_Goods_1\n"
                                                "index Goods_DESCR\n",
                                                "ok *cancel")}));
        QCOMPARE(rows("select * from sqlite_master"), before);
        host_.answers = {Button::ok, Button::ok, Button::ok, Button::ok};
        QVERIFY(change("Goods", [](const Dialog& dialog) {
            dialog.fields->setCurrentCell(2, name);
            dialog.click("Remove");
            dialog.ok();
        }));
        QCOMPARE(rows("select name from sqlite_master where tbl_name='Goods'"),
                 QStringList({"Goods"}));
    }

    void anIndexThatCannotBeMadeAnewIsTold() {
        make(goods + "create index Upper on Goods (upper(code))\n");
        host_.answers = {Button::yes, Button::ok, Button::ok, Button::ok, Button::ok, Button::ok};
        QVERIFY(change("Goods", [](const Dialog& dialog) {
            dialog.put(1, name, "artikul");
            dialog.ok();
        }));
        QCOMPARE(boxes().size(), 6);
        QVERIFY2(boxes()[4].contains("no such column: code"), qPrintable(boxes()[4]));
        QCOMPARE(boxes()[5], "warning [dbObjectMake] [" + head("dbObjectMake") +
                                 "Ошибка при выполнении запроса: \n\nCREATE INDEX Upper on Goods "
                                 "(upper(code))]");
        QVERIFY(declaration().contains("artikul"));
    }

    void aRebuildThatFailsLeavesTheTable() {
        make(goods);
        QVERIFY(dbManage(u"data.sqlite"));
        // Somebody who reads keeps all others from writing.
        const otherConnection other("data.sqlite");
        QSqlQuery reading(other.database());
        reading.setForwardOnly(true);
        QVERIFY(reading.exec("select * from Goods") && reading.next());
        QVERIFY(change("Goods", [](const Dialog& dialog) {
            dialog.put(2, length, 50);
            dialog.ok();
        }));
        reading.finish();
        QVERIFY(!boxes().isEmpty());
        QVERIFY2(boxes()[0].contains("database is locked"), qPrintable(boxes()[0]));
        QCOMPARE(rows("select count(*) from Goods"), QStringList({"3"}));
        QVERIFY(declaration().contains("CHAR(40)"));
    }

    void openRowsFollowTheTable() {
        make(goods);
        QVERIFY(dbManage(u"data.sqlite"));
        dbTableBrowseShow(u"dbMain", u"Goods");
        QVERIFY(change("Goods", [](const Dialog& dialog) {
            dialog.fields->setCurrentCell(2, name);
            dialog.click("Remove");
            dialog.ok();
        }));
        QCOMPARE(shown(*table("Goods")), QStringList({"1|001|1.5", "2|002|2", "7|003|3"}));
    }

    void aTableOfAName() {
        make("create table \"my goods\" (id INTEGER PRIMARY KEY, \"the code\" CHAR(9), \"Order\" "
             "INT)\ninsert into \"my goods\" values (1,'a',5)\n"
             "create index \"by code\" on \"my goods\" (\"the code\")\n");
        host_.answers = {Button::yes, Button::ok, Button::ok, Button::ok};
        QVERIFY(change("my goods", [](const Dialog& dialog) {
            dialog.put(1, length, 20);
            dialog.ok();
        }));
        QCOMPARE(rows("select * from \"my goods\""), QStringList({"1|a|5"}));
        QVERIFY(declaration("my goods").contains("\"the code\" CHAR(20), \"Order\" INT(24)"));
        QVERIFY(!declaration("by code").isEmpty());
    }

    // --- indexes

    void anIndexIsCreated() {
        make(goods);
        QVERIFY(change("Goods", [](const Dialog& dialog) {
            dialog.tabs->setCurrentIndex(1);
            const dialogAnswer answer([](QWidget* asked) {
                auto* const columns = asked->findChild<QListWidget*>();
                auto* const text = asked->findChild<QLineEdit*>();
                auto* const ok =
                    asked->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
                QVERIFY(!ok->isEnabled());
                // The key has the order of the ticks.
                columns->item(3)->setCheckState(Qt::Checked);
                columns->item(0)->setCheckState(Qt::Checked);
                columns->item(1)->setCheckState(Qt::Checked);
                columns->item(0)->setCheckState(Qt::Unchecked);
                QCOMPARE(text->text(), QString("Goods_PRICE_CODE"));
                asked->findChild<QCheckBox*>()->setChecked(true);
                QVERIFY(saveScreenshot(*asked, "manager-index"));
                QVERIFY(ok->isEnabled());
                ok->click();
            });
            dialog.click("Create...");
            QVERIFY(answer.given());
            QCOMPARE(Dialog::rowsOf(*dialog.indexes),
                     QStringList({"Goods_PRICE_CODE|price, code|"}));
            // At once.
            QCOMPARE(declaration("Goods_PRICE_CODE"),
                     QString("CREATE UNIQUE INDEX Goods_PRICE_CODE on Goods (price, code)"));
            dialog.cancel();
        }));
        QVERIFY(boxes().isEmpty());
        QVERIFY(shown(*list()).last().startsWith("index|Goods_PRICE_CODE"));
    }

    void anIndexThatCannotBeIsTold() {
        make(goods + "update Goods set code='1'\n");
        QVERIFY(change("Goods", [](const Dialog& dialog) {
            dialog.tabs->setCurrentIndex(1);
            const dialogAnswer answer([](QWidget* asked) {
                asked->findChild<QListWidget*>()->item(1)->setCheckState(Qt::Checked);
                auto* const text = asked->findChild<QLineEdit*>();
                text->clear();
                QTest::keyClicks(text, "one of a kind");
                asked->findChild<QCheckBox*>()->setChecked(true);
                asked->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
            });
            dialog.click("Create...");
            QVERIFY(answer.given());
            QCOMPARE(dialog.indexes->rowCount(), 0);
            dialog.cancel();
        }));
        QCOMPARE(boxes().size(), 2);
        QVERIFY2(boxes()[0].contains("UNIQUE constraint failed"), qPrintable(boxes()[0]));
        QVERIFY(boxes()[1].contains("create unique index \"one of a kind\" on Goods (code);"));
    }

    void anIndexIsDropped() {
        make("create table Goods (id INTEGER PRIMARY KEY, code CHAR(9) UNIQUE, n INT)\n"
             "create index Goods_N on Goods (n)\n");
        QVERIFY(change("Goods", [this](const Dialog& dialog) {
            dialog.tabs->setCurrentIndex(1);
            QCOMPARE(Dialog::rowsOf(*dialog.indexes),
                     QStringList({"sqlite_autoindex_Goods_1|code|the table", "Goods_N|n|"}));
            QVERIFY(!dialog.button("Drop")->isEnabled());
            dialog.indexes->setCurrentCell(1, 0);
            dialog.click("Drop");
            QCOMPARE(dialog.indexes->rowCount(), 2);
            host_.answers = {Button::ok, Button::ok};
            dialog.click("Drop");
            QCOMPARE(dialog.indexes->rowCount(), 1);
            dialog.cancel();
        }));
        QCOMPARE(boxes().size(), 3);
        QVERIFY(boxes()[1].startsWith("question [localDb::dbtDeleteAfterAnswer] [Index "
                                      "\"Goods_N\" will be deleted."));
        QVERIFY(declaration("Goods_N").isEmpty());
        // The list of objects has been read again.
        QCOMPARE(shown(*list()).size(), 2);
    }
};

QTEST_MAIN(managerStructure)
#include "managerStructure.moc"
