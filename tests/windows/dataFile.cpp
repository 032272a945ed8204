// A data file in the window program: which one it is, and its use by the console, by a program
// under DEBUG and by windows, each on the thread that is its own.
#include <QFileDialog>
#include <QLineEdit>
#include <QSqlDatabase>

#include "debugTest.h"
#include "localDb/localDb.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "windowTest.h"

using consoleTest::withoutTail;
using consoleTest::write;

namespace {

const QString opened = "база данных по адресу [data.sqlite] открыта успешно.";

const QByteArray make =
    "CLASSLOAD(\"DATABASE\");\n"
    "base = CREATEOBJECT(\"DATABASE\");\n"
    "base.CONNECT();\n"
    "result = CREATEOBJECT(\"VALUETABLE\");\n"
    "base.QUERYTOVALUETABLE(\"create table Goods (id INTEGER PRIMARY KEY, CODE CHAR(9))\", "
    "result);\n"
    "base.QUERYTOVALUETABLE(\"insert into Goods (CODE) values ('001'),('002'),('003')\", result);\n"
    "record = base.RECORDGET(\"Goods\");\n";

}  // namespace

class dataFile : public debugTest {
    Q_OBJECT

private:
    // The console has an object connected to a file of three goods, and a record.
    void makeGoods() {
        write("data.sqlite", "");
        qApp->setProperty("dataFileName", "data.sqlite");
        write("make.prg", make);
        enter("DO make.prg");
        QVERIFY2(output_.contains(opened), qPrintable(output_.join('\n')));
        takeOutput();
    }
    bool told(localErrorType status) {
        const QString message = QString::fromStdU16String(statusMessage(status));
        return !output_.filter(message).isEmpty();
    }

private slots:
    void cleanup() {
        test::cleanup();
        localDb::applicationSetDataFullFileName(u"");
        if (localDbConnection::exists(localDbConnection::mainName)) {
            localDbConnection::database(localDbConnection::mainName).close();
        }
    }

    // --- which file

    void theDialogChoosesAFileThatWasNotSet() {
        write("chosen.sqlite", "");
        enter("CLASSLOAD(\"DATABASE\")");
        enter("base = CREATEOBJECT(\"DATABASE\")");
        const dialogAnswer answer([](QWidget* dialog) {
            auto* const files = qobject_cast<QFileDialog*>(dialog);
            QVERIFY(files != nullptr);
            QCOMPARE(files->windowTitle(), QString("Open file database "));
            auto* const name = files->findChild<QLineEdit*>("fileNameEdit");
            QVERIFY(name != nullptr);
            name->setText(QDir::current().filePath("chosen.sqlite"));
            QTest::keyClick(name, Qt::Key_Return);
        });
        enter("? base.CONNECT()");
        QVERIFY(answer.given());
        QCOMPARE(output_.last(), QString("ИСТИНА"));
        QVERIFY(qApp->property("dataFileName").toString().endsWith("/chosen.sqlite"));
        // It is not asked for again.
        QCOMPARE(outputOf("? base.CONNECT()").last(), QString("ИСТИНА"));
    }

    void aDialogWithoutAnAnswerLeavesNoFile() {
        enter("CLASSLOAD(\"DATABASE\")");
        enter("base = CREATEOBJECT(\"DATABASE\")");
        const dialogAnswer answer(
            [](QWidget* dialog) { qobject_cast<QDialog*>(dialog)->reject(); });
        enter("? base.CONNECT()");
        QVERIFY(answer.given());
        QVERIFY2(told(localErrorTypeFILENOTFOUND), qPrintable(output_.join('\n')));
    }

    // --- threads

    void anObjectOfTheConsoleIsUsedUnderDebug() {
        makeGoods();
        const QString program = "base.QUERYTOVALUETABLE(\"select count(*) from Goods\", result);\n"
                                "count = result.VALUEGET(1,1);\n"
                                "record.SELECT(\"id>1\");\n"
                                "record.NEXT();\n"
                                "code = record.CODE;\n";
        QCOMPARE(debug(program), 0);
        QVERIFY(stepTo(program, "record.SELECT"));
        QCOMPARE(variable(u"count"), QString("3"));
        // The console goes on with it meanwhile.
        QCOMPARE(outputOf("? base.QUERYTOVALUETABLE(\"select 2+2\", result)"),
                 QStringList({"ИСТИНА"}));
        QVERIFY(stepTo(program, "code = "));
        while (step() != ended) {}
        QCOMPARE(variable(u"code"), QString("002"));
        QVERIFY(host_.calls.empty());
    }

    void aWalkOfTheConsoleIsNotGoneOnWithUnderDebug() {
        makeGoods();
        enter("record.SELECT()");
        enter("record.NEXT()");
        const QString program = "more = record.NEXT();\n";
        QCOMPARE(debug(program), 0);
        QCOMPARE(step(), ended);
        QVERIFY(isOutput("NEXT() goes on where SELECT() was called"));
        QVERIFY2(told(localErrorTypeDATABASECONNECTION), qPrintable(output_.join('\n')));
        enter("record.NEXT()");
        QCOMPARE(outputOf("? record.CODE"), QStringList({"002"}));
    }

    void anObjectThatAFinishedDebugLeftIsUsedAtTheConsole() {
        makeGoods();
        const QString program = "mine = CREATEOBJECT(\"DATABASE\");\n"
                                "mine.CONNECT();\n"
                                "walk = mine.RECORDGET(\"Goods\");\n"
                                "walk.SELECT();\n"
                                "walk.NEXT();\n";
        QCOMPARE(debug(program), 0);
        while (step() != ended) {}
        QCOMPARE(outputOf("? mine.QUERYTOVALUETABLE(\"select count(*) from Goods\", result)"),
                 QStringList({"ИСТИНА"}));
        QCOMPARE(outputOf("? result.VALUEGET(1,1)"), QStringList({"3"}));
        QCOMPARE(outputOf("? walk.CODE"), QStringList({"001"}));
        enter("? walk.NEXT()");
        QVERIFY2(told(localErrorTypeDATABASECONNECTION), qPrintable(output_.join('\n')));
        enter("walk.SELECT()");
        QCOMPARE(outputOf("? walk.NEXT()"), QStringList({"ИСТИНА"}));
        enter("mine = 0");
        enter("walk = 0");
        // A second program has a thread of its own again.
        QCOMPARE(debug("more = record.SELECT();\n"), 0);
        while (step() != ended) {}
        QCOMPARE(variable(u"more"), QString("ИСТИНА"));
    }

    void windowsReadTheFileMeanwhile() {
        makeGoods();
        QVERIFY(localDb::testDbInit(u"data.sqlite"));
        const QString program =
            "base.QUERYTOVALUETABLE(\"insert into Goods (CODE) values ('004')\", result);\n"
            "base.QUERYTOVALUETABLE(\"BEGIN\", result);\n"
            "base.QUERYTOVALUETABLE(\"delete from Goods\", result);\n"
            "base.QUERYTOVALUETABLE(\"ROLLBACK\", result);\n"
            "end = 1;\n";
        QCOMPARE(debug(program), 0);
        QCOMPARE(localDb::dbtRecordCount("dbMain", "Goods"), 3);
        QVERIFY(stepTo(program, "base.QUERYTOVALUETABLE(\"BEGIN"));
        QCOMPARE(localDb::dbtRecordCount("dbMain", "Goods"), 4);
        // What is under way elsewhere is not seen.
        QVERIFY(stepTo(program, "base.QUERYTOVALUETABLE(\"ROLLBACK"));
        QCOMPARE(localDb::dbtRecordCount("dbMain", "Goods"), 4);
        QVERIFY(stepTo(program, "end = "));
        QCOMPARE(localDb::dbtRecordCount("dbMain", "Goods"), 4);
        while (step() != ended) {}
        QVERIFY(host_.calls.empty());
    }

    void theWindowsConnectionIsNotForOtherThreads() {
        makeGoods();
        QVERIFY(localDb::testDbInit(u"data.sqlite"));
        QCOMPARE(debug("opened = base.__TESTDBOPEN(\"data.sqlite\");\n"), 0);
        while (step() != ended) {}
        QCOMPARE(variable(u"opened"), QString("ЛОЖЬ"));
        QCOMPARE(host_.calls.size(), std::size_t(1));
        QCOMPARE(localDb::dbtRecordCount("dbMain", "Goods"), 3);
    }
};

QTEST_MAIN(dataFile)
#include "dataFile.moc"
