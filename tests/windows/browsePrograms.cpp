// Browse windows that programs open: what a program tells of one, a record that a person chooses,
// the samples over the demonstration file.
#include "debugTest.h"
#include "localDb/localDb.h"
#include "localDbVcl/directory/localRefBrowseWidget200123.h"
#include "screenshot.h"
#include "windowTest.h"

using consoleTest::json;
using consoleTest::write;
using Browse = localDbtBrowseWidget200123;

namespace {

const QString call = "? base.__TEST__BROWSE(list)";

}  // namespace

class browsePrograms : public debugTest {
    Q_OBJECT

private:
    static QList<Browse*> browses() {
        QList<Browse*> all;
        for (QWidget* const widget : QApplication::topLevelWidgets()) {
            all += widget->findChildren<Browse*>();
        }
        return all;
    }
    static Browse* browse() { return browses().isEmpty() ? nullptr : browses().front(); }

    void connectDemo() {
        qApp->setProperty("dataFileName", "demo.sqlite");
        enter("DO \"" +
              QDir(qEnvironmentVariable("KORVO_SOURCE")).filePath("prgTest/demoData.prg") + "\"");
        QVERIFY2(output_.contains("Ошибок: 0"), qPrintable(output_.join('\n')));
        enter("base = CREATEOBJECT(\"DATABASE\")");
        enter("base.CONNECT()");
        takeOutput();
        // A console without a history says so.
        host_.calls.clear();
        host_.reports.clear();
    }
    // The list that a program gives, but for these keys, and with more.
    void makeList(const QByteArray& without = {}, const QByteArray& more = {}) {
        const QList<QPair<QByteArray, QByteArray>> keys = {
            {"aliases",
             "[{'dbtName':'Ref03','aliasName':'tov','leftJoinCondition':''},"
             "{'dbtName':'Ref03','aliasName':'f','leftJoinCondition':'f.id=tov.parentid'}"
             "]"},
            {"sqlExpressions",
             "[{'sqlExpression':'tov.id'},{'sqlExpression':'tov.descr','aliasName'"
             ":'D'},{'sqlExpression':'f.descr'}]"},
            {"defaultIdxName", "'Ref03_CODE'"},
            {"gridColumns", "[{'caption':'Товар','dataBuferColumn':1,'description':'как зовут',"
                            "'width':200,'idxName':'Ref03_DESCR'},{'caption':'Папка',"
                            "'dataBuferColumn':2,'description':'','width':100,'idxName':''}]"}};
        QByteArrayList parts;
        for (const auto& [key, value] : keys) {
            if (key != without) {
                parts.append("'" + key + "':" + value);
            }
        }
        if (!more.isEmpty()) {
            parts.append(more);
        }
        write("list.json", json("{" + parts.join(',') + "}"));
        enter("list = РазобратьJSON(СтрокаИзФайла(\"list.json\"))");
        takeOutput();
    }
    QString chosen() { return outputOf("? list.VALUEGETBYPRESENTATION(\"idSelected\")").last(); }

private slots:
    void cleanup() {
        test::cleanup();
        localDb::applicationSetDataFullFileName(u"");
        if (localDbConnection::exists(localDbConnection::mainName)) {
            localDbConnection::database(localDbConnection::mainName).close();
        }
    }
    void init() {
        test::init();
        start();
        connectDemo();
    }

    void aProgramShowsATable() {
        makeList();
        QCOMPARE(outputOf(call).last(), QString("ИСТИНА"));
        QCOMPARE(browses().size(), 1);
        QCOMPARE(browse()->window()->windowTitle(), QString("newLocalDbtBrowseWidget200123"));
        QCOMPARE(browse()->cellText(1, 1), QString("Гвозди 1"));
        QCOMPARE(browse()->cellText(1, 2), QString("Папка 1"));
        QCOMPARE(browse()->column(0).description, QString("как зовут"));
        QCOMPARE(browse()->column(0).width, 200);
        // Keys reach it at once.
        QCOMPARE(browse()->window()->focusWidget(), browse());
        QVERIFY(saveScreenshot(*browse()->window(), "browseOfAProgram"));
        QVERIFY(host_.calls.empty());
    }

    void aListThatLacksAKeyShowsNothing() {
        for (const char* const key :
             {"aliases", "sqlExpressions", "defaultIdxName", "gridColumns"}) {
            makeList(key);
            QCOMPARE(outputOf(call).last(), QString("ИСТИНА"));
            QVERIFY2(browse() == nullptr, key);
        }
        for (const char* const more : {"'aliases':[{'dbtName':'Ref03','aliasName':'tov'}]",
                                       "'aliases':5", "'aliases':['Ref03']"}) {
            makeList("aliases", more);
            QCOMPARE(outputOf(call).last(), QString("ИСТИНА"));
            QVERIFY2(browse() == nullptr, more);
        }
        makeList("gridColumns", "'gridColumns':[{'caption':'Товар'}]");
        QCOMPARE(outputOf(call).last(), QString("ИСТИНА"));
        QVERIFY(browse() == nullptr);
        QVERIFY(host_.calls.empty());
    }

    void columnsThatAreNoListAreToldOf() {
        makeList("gridColumns", "'gridColumns':'id'");
        QCOMPARE(outputOf(call).last(), QString("ИСТИНА"));
        QVERIFY(browse() == nullptr);
        QCOMPARE(host_.reports.size(), 1U);
        QCOMPARE(host_.reports[0].text, std::u16string(u"!gridColumnsVL"));
    }

    void anIndexThatIsNotThereShowsABoxAndNoWindow() {
        makeList("defaultIdxName", "'defaultIdxName':'Ref03_WRONG'");
        QCOMPARE(outputOf(call).last(), QString("ИСТИНА"));
        QVERIFY(browse() == nullptr);
        QCOMPARE(host_.reports.size(), 1U);
        QCOMPARE(host_.reports[0].kind, localReport::Kind::critical);
        QCOMPARE(host_.reports[0].title, std::u16string(u"localDbDataSource200123"));
        QVERIFY(host_.reports[0].text.ends_with(u"Не удалось установить индекс Ref03_WRONG"));
    }

    void theWindowOutlivesItsObject() {
        makeList();
        enter(call);
        enter("base = 0");
        enter("CLEAR MEMORY");
        QTest::keyClick(browse(), Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(browse()->cellText(browse()->currentRow(), 1), QString("Папка 8"));
        QVERIFY(host_.calls.empty());
    }

    void theWindowOutlivesTheConsole() {
        makeList();
        enter(call);
        enter("QUIT");
        end();
        QTest::keyClick(browse(), Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(browse()->cellText(browse()->currentRow(), 1), QString("Папка 8"));
    }

    // --- choosing

    void aPersonChoosesARecord() {
        makeList({}, "'selectMode':1");
        const dialogAnswer answer([](QWidget* window) {
            QCOMPARE(window->windowModality(), Qt::ApplicationModal);
            QTest::keyClick(browse(), Qt::Key_Down);
            QTest::keyClick(browse(), Qt::Key_Return);
        });
        QCOMPARE(outputOf(call).last(), QString("ИСТИНА"));
        QVERIFY(answer.given());
        QVERIFY(browse() == nullptr);
        QCOMPARE(chosen(), QString("10"));
        const dialogAnswer again([](QWidget*) {
            QTest::mouseDClick(browse(), Qt::LeftButton, {},
                               browse()->cellRectangle(5, 1).center());
        });
        enter(call);
        QVERIFY(again.given());
        QCOMPARE(chosen(), QString("13"));
    }

    void whoClosesTheWindowChoosesNothing() {
        makeList({}, "'selectMode':1");
        {
            const dialogAnswer answer([](QWidget*) { QTest::keyClick(browse(), Qt::Key_Escape); });
            enter(call);
            QVERIFY(answer.given());
        }
        QCOMPARE(chosen(), QString("0"));
        const dialogAnswer answer([](QWidget* window) { window->close(); });
        enter(call);
        QVERIFY(answer.given());
        QCOMPARE(chosen(), QString("0"));
    }

    void aWindowThatIsDeletedChoosesNothing() {
        makeList({}, "'selectMode':1");
        const dialogAnswer answer([](QWidget* window) { delete window; });
        enter(call);
        QVERIFY(answer.given());
        QCOMPARE(chosen(), QString("0"));
    }

    void aProgramUnderDebugLetsAPersonChoose() {
        makeList({}, "'selectMode':1");
        const QString program = "base.__TEST__BROWSE(list);\n"
                                "id = list.VALUEGETBYPRESENTATION(\"idSelected\");\n"
                                "after = 1;\n";
        QCOMPARE(debug(program), 0);
        const dialogAnswer answer([&](QWidget*) {
            // The turn is free while a person chooses.
            const localTurn::Attempt turn;
            QVERIFY(turn);
            QTest::keyClick(browse(), Qt::Key_Return);
        });
        QVERIFY(stepTo(program, "after"));
        QVERIFY(answer.given());
        QCOMPARE(variable(u"id"), QString("9"));
        while (step() != ended) {}
    }

    void aBrowseIsUsedWhileAProgramRuns() {
        makeList();
        enter(call);
        const QString program = "x = base.QUERYTOVALUETABLE(\"select 1\", 0);\n"
                                "base.__TEST__BROWSE(list);\n"
                                "y = 1;\n";
        QCOMPARE(debug(program), 0);
        QTest::keyClick(browse(), Qt::Key_End, Qt::ControlModifier);
        while (step() != ended) {
            QTest::keyClick(browse(), Qt::Key_Up);
        }
        QVERIFY(host_.calls.empty());
        for (Browse* const one : browses()) {
            QTest::keyClick(one, Qt::Key_PageUp, Qt::ControlModifier);
            QCOMPARE(one->cellText(1, 1), QString("Гвозди 1"));
        }
    }

    // --- samples

    void theSamplesBrowseTheDemonstrationFile() {
        const struct {
            int number;
            QStringList heading;
            QStringList firstRow;
            bool directory;
        } samples[] = {{1,
                        {"Использует класс localDbtBrowseWidget200123 с таблицей Ref03"},
                        {"9", "000001", "Гвозди 1", "1", "17", "A-1", "1"},
                        false},
                       {2,
                        {"Использует класс localRefBrowseWidget200123 с таблицей Ref03",
                         "Фактически моделирует работу справочника [Товары]"},
                        {"9", "000001", "Гвозди 1", "1", "17", "A-1", "1"},
                        true},
                       {3,
                        {"Использует класс localRefBrowseWidget200123 с таблицами Ref01 и Ref02"},
                        {"9", "000001", "Гвозди 1", "000001", "Розничная"},
                        true},
                       {4,
                        {"Использует класс localRefBrowseWidget200123 с таблицами Ref05 и Ref01"},
                        {"1", "000001", "Шурупы 10", "Краска 11"},
                        true}};
        for (const auto& [number, heading, firstRow, directory] : samples) {
            const QStringList output = outputOf(QString("? base.__TEST(%1)").arg(number));
            for (const QString& line : heading) {
                QVERIFY2(output.contains(line), qPrintable(output.join('\n')));
            }
            QCOMPARE(output.last(), QString("ИСТИНА"));
            QCOMPARE(browses().size(), 1);
            QCOMPARE(qobject_cast<localRefBrowseWidget200123*>(browse()) != nullptr, directory);
            QStringList shown;
            for (unsigned column = 1; column <= browse()->columnsCount(); ++column) {
                shown.append(browse()->cellText(1, column));
            }
            QCOMPARE(shown, firstRow);
            QVERIFY(saveScreenshot(*browse()->window(), QString("browseSample%1").arg(number)));
            delete browse()->window();
        }
        QVERIFY(host_.calls.empty());
    }

    void thereAreFourSamples() {
        for (const char* const number : {"0", "5", "-1"}) {
            QCOMPARE(outputOf(QString("? base.__TEST(%1)").arg(number)), QStringList("ЛОЖЬ"));
        }
        QVERIFY(browse() == nullptr);
        enter("table = base.TABLEGET(\"Ref03\")");
        enter("record = base.RECORDGET(\"Ref03\")");
        enter("table.__TEST(2)");
        enter("record.__TEST(3)");
        QCOMPARE(browses().size(), 2);
    }
};

QTEST_MAIN(browsePrograms)
#include "browsePrograms.moc"
