// The examples of the manual that need the window program, each acted out by a person at a console
// of its own. The terminal program runs the others. How they are written stands in manualExample.h.
#include <QImage>

#include <algorithm>

#include "consoleTest.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "manualExample.h"
#include "manualPerson.h"

using consoleTest::prompt;
using consoleTest::read;
using consoleTest::withoutTail;
using consoleTest::write;
using manualExample::step;

namespace {

// Examples of functions whose library is not part of the program yet: each ends with that status.
const QStringList libraryMissing = {"CONTEXT:FORMEDIT", "CONTEXT:NETWORKREQUESTEXECSYNC"};

const QString program = "example.prg";

}  // namespace

class manualExamples : public consoleTest::test {
    Q_OBJECT

private:
    localVclHost realHost_;
    QTemporaryDir tools_;
    std::vector<manualExample::example> examples_;

    static QString samples() { return qEnvironmentVariable("KORVO_SOURCE") + "/prgTest"; }
    QString startedName() const { return tools_.filePath("started.txt"); }

    // Files that examples take for granted, besides the samples.
    void fillFolder() {
        for (const QString& name : QDir(samples()).entryList(QDir::Files)) {
            QVERIFY(QFile::copy(samples() + "/" + name, name));
            QVERIFY(QFile::setPermissions(name, QFile::ReadOwner | QFile::WriteOwner));
        }
        QImage goods(64, 48, QImage::Format_RGB32);
        goods.fill(Qt::darkGreen);
        QVERIFY(goods.save("goods.png"));
        QVERIFY(goods.save("goods.jpg"));
        write("old.prg",
              QByteArray::fromHex("3f2022") + QByteArray::fromHex("cceeebeeeaee") + "\";\n");
        write("invoice.xml", "<form/>\n");
        write("console_history.log", "");
        write("demo.sqlite", "");
        qApp->setProperty("dataFileName", "demo.sqlite");
    }

    // Stands for an outside program, and records that it was started.
    void makeTool(const QString& name) {
        const QString tool = tools_.filePath("bin/" + name);
        write(tool, "#!/bin/sh\necho \"${0##*/}${1:+ $*}\" >>'" + startedName().toUtf8() + "'\n");
        QVERIFY(QFile::setPermissions(tool, QFile::ReadOwner | QFile::ExeOwner));
    }
    QStringList started() const {
        return QFile::exists(startedName())
                   ? QString::fromUtf8(read(startedName())).split('\n', Qt::SkipEmptyParts)
                   : QStringList();
    }

public:
    manualExamples();

private slots:
    void init();
    void example_data();
    void example();
};

manualExamples::manualExamples() {
    QDir(tools_.path()).mkdir("bin");
    qputenv("PATH", tools_.filePath("bin").toUtf8() + ":" + qgetenv("PATH"));
    qunsetenv("VISUAL");
    qunsetenv("EDITOR");
}

void manualExamples::init() {
    test::init();
    localHost::install(&realHost_);
    QFile::remove(startedName());
    fillFolder();
    start();
}

void manualExamples::example_data() {
    int total = 0;
    examples_ = manualExample::ofBook(samples() + "/testHelpLocalInterpretatorUtf8.json", total);
    QVERIFY(!examples_.empty());
    QVERIFY(int(examples_.size()) < total);
    qInfo("%d of %d examples, the others are the terminal program's", int(examples_.size()), total);
    QTest::addColumn<int>("number");
    for (std::size_t i = 0; i < examples_.size(); ++i) {
        QTest::newRow(qPrintable(examples_[i].place)) << int(i);
    }
}
void manualExamples::example() {
    QFETCH(int, number);
    const manualExample::example& told = examples_[static_cast<std::size_t>(number)];
    const bool isMissing = libraryMissing.contains(told.place);
    std::vector<step> steps;
    if (!told.isSession) {
        write(program, told.text.toUtf8());
        steps.push_back({step::Kind::type, "DO " + program + "[Ввод]", {}});
    }
    if (!isMissing) {
        const auto isSeen = [](const step& each) { return each.kind != step::Kind::type; };
        QVERIFY2(!told.output.isEmpty() || std::ranges::any_of(told.steps, isSeen),
                 "the example tells nothing");
        steps.insert(steps.end(), told.steps.begin(), told.steps.end());
    }
    for (const step& each : steps) {
        if (each.kind == step::Kind::started) {
            makeTool(each.text.section(' ', 0, 0));
        }
    }
    manualPerson person(shown(), [this] { return started(); });
    const QString fault = person.act(steps);
    QVERIFY2(fault.isEmpty(), qPrintable(fault + "\noutput:\n" + output_.join('\n')));
    QCOMPARE(inputLine(), prompt);
    if (isMissing) {
        QVERIFY(!output_.isEmpty());
        const QString message = QString::fromStdU16String(statusMessage(localErrorTypeGRAPHICONLY));
        QVERIFY2(withoutTail(output_.last()) == message, qPrintable(output_.join('\n')));
        return;
    }
    const QString difference = manualExample::difference(output_, told.output);
    QVERIFY2(difference.isEmpty(), qPrintable(difference + "\noutput:\n" + output_.join('\n')));
}

QTEST_MAIN(manualExamples)
#include "manualExamples.moc"
