// The command MANAGE and the method TREESHOW, typed and beside or in a program under DEBUG.
#include <QFileDialog>
#include <QSqlQuery>

#include "debugTest.h"
#include "localDb/localDb.h"
#include "localDbVcl/manager/localDbManagerTableView.h"
#include "localDbVcl/manager/localDbTree.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localVCL/text/localVclText.h"
#include "screenshot.h"
#include "windowTest.h"

using consoleTest::prompt;
using consoleTest::withoutTail;
using consoleTest::write;

class managerCommand : public debugTest {
    Q_OBJECT

private:
    template <typename View>
    static QList<View*> open() {
        QList<View*> all;
        for (QWidget* const widget : QApplication::topLevelWidgets()) {
            if (auto* const found = widget->findChild<View*>()) {
                all.append(found);
            }
        }
        return all;
    }
    static QList<localDbManagerTableView*> lists() { return open<localDbManagerTableView>(); }

    // A file of two tables.
    static void make(const QString& name) {
        write(name, "");
        QVERIFY(localDb::testDbInit(localVclText(name)));
        QSqlQuery query(localDbConnection::database(localDbConnection::mainName));
        QVERIFY(query.exec("create table Goods (id INTEGER PRIMARY KEY, code CHAR(9))"));
        QVERIFY(query.exec("create table Prices (id INTEGER PRIMARY KEY, price NUME, Goods INT)"));
    }
    static QString named(const QTreeWidgetItem* item) {
        return QString::number(item->type()) + " " + item->text(0);
    }

private slots:
    void init() {
        debugTest::init();
        make("data.sqlite");
        qApp->setProperty("dataFileName", "data.sqlite");
        takeOutput();
    }
    void cleanup() {
        test::cleanup();
        localDb::applicationSetDataFullFileName(u"");
        localDbConnection::database(localDbConnection::mainName).close();
    }

    // --- MANAGE

    void opensTheManager_data() {
        QTest::addColumn<QString>("line");
        QTest::newRow("alone") << "MANAGE";
        QTest::newRow("in small letters") << "manage";
        QTest::newRow("shortened") << "mana";
        QTest::newRow("with a file") << "MANAGE data.sqlite";
        QTest::newRow("with a quoted file") << "MANAGE   \"data.sqlite\"";
        QTest::newRow("with strokes of the other system") << "MANAGE .\\data.sqlite";
    }
    void opensTheManager() {
        QFETCH(QString, line);
        const QStringList output = outputOf(line);
        QCOMPARE(lists().size(), 1);
        QCOMPARE(lists()[0]->window()->windowTitle(), QString("dbManage()"));
        QCOMPARE(lists()[0]->model()->rowCount(), 2);
        const QString file = QFileInfo("data.sqlite").absoluteFilePath();
        QCOMPARE(output, QStringList({"fileNameForOpenQString=[" + file +
                                          "]localDb::testDbInit выбран файл [" + file + "]",
                                      "база данных по адресу [" + file + "] открыта успешно."}));
        QCOMPARE(inputLine(), prompt);
        QVERIFY(host_.calls.empty());
    }

    void asksForADataFileThatIsNotThere() {
        qApp->setProperty("dataFileName", QVariant());
        const dialogAnswer answer([](QWidget* dialog) {
            QVERIFY(qobject_cast<QFileDialog*>(dialog) != nullptr);
            static_cast<QDialog*>(dialog)->reject();
        });
        enter("MANAGE");
        QVERIFY(answer.given());
        QVERIFY(lists().isEmpty());
        QCOMPARE(host_.calls, std::vector<std::string>(
                                  {"warning [dbManage()] [Файл ..\\lib\\Zakup200215.sqlite не "
                                   "найден!]"}));
        QCOMPARE(inputLine(), prompt);
    }

    void tellsOfAFileThatIsNotThere() {
        enter("MANAGE \"no such file.sqlite\"");
        QVERIFY(lists().isEmpty());
        QCOMPARE(host_.calls, std::vector<std::string>({"warning [dbManage()] [Файл no such "
                                                        "file.sqlite не найден!]"}));
        QCOMPARE(inputLine(), prompt);
    }

    void aQuoteWithoutAnEnd() {
        QCOMPARE(outputOf("MANAGE \"data.sqlite"), QStringList({"команда: MANAGE Syntax ERROR"}));
        QVERIFY(lists().isEmpty());
    }

    void aVariableOfThatName_data() {
        QTest::addColumn<QString>("line");
        for (const QString line : {"manage = 5", "manage=5", "MANAGE =5", "mana = 5"}) {
            QTest::newRow(qPrintable(line)) << line;
        }
    }
    void aVariableOfThatName() {
        QFETCH(QString, line);
        QCOMPARE(outputOf(line), QStringList());
        QCOMPARE(variable(line.startsWith("mana ") ? u"mana" : u"manage"), QString("5"));
        QVERIFY(lists().isEmpty());
        QCOMPARE(outputOf("? " + line.section('=', 0, 0).trimmed() + "+1"), QStringList({"6"}));
    }

    void namesThatOnlyBeginSo() {
        enter("manage = CREATEOBJECT(\"VALUELIST\")");
        enter("manage.VALUEADD(7)");
        QCOMPARE(outputOf("? manage.SIZE()"), QStringList({"1"}));
        enter("managed = 3");
        enter("managed");
        QVERIFY(lists().isEmpty());
    }

    void noCommandOfPrograms() {
        write("word.prg", "MANAGE;\n");
        const QString output = outputOf("DO word.prg").join('\n');
        QVERIFY2(output.contains(QString::fromStdU16String(statusMessage(localErrorTypeSYNTAX))),
                 qPrintable(output));
        QVERIFY(lists().isEmpty());
    }

    void windowsWorkBesideAProgram() {
        const QString program = "CLASSLOAD(\"DATABASE\");\nbase = CREATEOBJECT(\"DATABASE\");\n"
                                "base.CONNECT();\nresult = CREATEOBJECT(\"VALUETABLE\");\n"
                                "base.QUERYTOVALUETABLE(\"insert into Goods (code) values "
                                "('1')\", result);\n"
                                "end = 1;\n";
        QCOMPARE(debug(program), 0);
        enter("MANAGE");
        QCOMPARE(lists().size(), 1);
        QVERIFY(stepTo(program, "end = 1"));
        QTest::keyClick(lists()[0], Qt::Key_F5);
        QCOMPARE(lists()[0]->model()->index(0, 2).data().toString(), QString("1"));
        while (step() != ended) {}
        QVERIFY(host_.calls.empty());
    }

    // --- TREESHOW

    void theTreeOfTables() {
        enter("CLASSLOAD(\"DATABASE\")");
        enter("base = CREATEOBJECT(\"DATABASE\")");
        enter("base.CONNECT()");
        QCOMPARE(outputOf("? base.TREESHOW()"), QStringList({"ИСТИНА"}));
        QCOMPARE(open<localDbTree>().size(), 1);
        localDbTree& tree = *open<localDbTree>()[0];
        QCOMPARE(tree.window()->windowTitle(), QString("tree"));
        QCOMPARE(tree.topLevelItemCount(), 1);
        QTreeWidgetItem* const root = tree.topLevelItem(0);
        QVERIFY2(named(root).startsWith("1002 db-20"), qPrintable(named(root)));
        QCOMPARE(root->childCount(), 2);
        QCOMPARE(named(root->child(1)), QString("1003 Prices"));
        QCOMPARE(root->child(1)->childCount(), 1);
        QTreeWidgetItem* const fields = root->child(1)->child(0);
        QCOMPARE(named(fields), QString("1004 Поля"));
        QStringList names;
        for (int i = 0; i < fields->childCount(); ++i) {
            names.append(named(fields->child(i)));
        }
        QCOMPARE(names, QStringList({"1005 id", "1005 price", "1005 Goods"}));
        for (const QTreeWidgetItem* const item : {root, root->child(0), fields, fields->child(0)}) {
            QVERIFY(!item->icon(0).isNull());
        }
        QVERIFY(host_.calls.empty());
        // A folder that is opened looks so, and closed again as before.
        const auto picture = [&] { return fields->icon(0).pixmap(16).toImage(); };
        const QImage closed = picture();
        tree.expandItem(root->child(1));
        tree.expandItem(fields);
        QVERIFY(picture() != closed);
        QVERIFY(saveScreenshot(*tree.window(), "manager-tree"));
        tree.collapseItem(fields);
        QCOMPARE(picture(), closed);
        QVERIFY(QTest::qWaitForWindowActive(tree.window()));
        QTest::keyClick(&tree, Qt::Key_Escape);
        QTRY_VERIFY(open<localDbTree>().isEmpty());
    }

    void theTreeOfNoFile() {
        enter("CLASSLOAD(\"DATABASE\")");
        enter("base = CREATEOBJECT(\"DATABASE\")");
        QCOMPARE(outputOf("? base.TREESHOW()"), QStringList({"ИСТИНА"}));
        QCOMPARE(open<localDbTree>()[0]->topLevelItem(0)->childCount(), 0);
    }

    void theTreeUnderDebug() {
        QCOMPARE(debug("CLASSLOAD(\"DATABASE\");\nbase = CREATEOBJECT(\"DATABASE\");\n"
                       "base.CONNECT();\nshown = base.TREESHOW();\nend = 1;\n"),
                 0);
        while (step() != ended) {}
        QCOMPARE(variable(u"shown"), QString("ИСТИНА"));
        QCOMPARE(open<localDbTree>()[0]->topLevelItem(0)->childCount(), 2);
        // The object goes before the window does.
        enter("base = 0");
        open<localDbTree>()[0]->expandAll();
    }
};

QTEST_MAIN(managerCommand)
#include "managerCommand.moc"
