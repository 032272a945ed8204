// The editor of programs: load and save, its window and title, closing, and how it is opened.

#include <QFileDialog>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QPushButton>

#include "editorTest.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/platform/localPlatform.h"
#include "localInterpretatorUTF8/program/localCommand.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localVCL/editor/localVclPrgTextHighlighter.h"
#include "localVCL/editor/localVclTextSaveDialog.h"
#include "localVCL/host/localVclHost.h"
#include "screenshot.h"

using namespace editorTest;

class editorFiles : public test {
    Q_OBJECT

private slots:
    void loadInCodePages();
    void loadMissingAsksForAFile();
    void loadMissingNothingChosen();
    void loadFolderReports();
    void saveKeys();
    void saveWritesUtf8();
    void saveFails();
    void saveToAFullDisk();
    void saveAFileThatIsGone();
    void saveInTheFolderOfTheFile();
    void namesWithBlanksAndRussianLetters();
    void nameTooLongForTheSystem();
    void lineEndsOfAnotherSystem();
    void charactersThatTheFileCannotHold();
    void bytesThatCannotBeRead();
    void lossBoxAnswers();
    void saveAs();
    void saveAsNothingChosen();
    void saveAsFails();
    void commonSaveDialog();
    void openKey();
    void titleMarksAChangedText();
    void titleOfANameWithTheMark();
    void closeDiscards();
    void closeCancelled();
    void closeSaves();
    void closeSavesUnderANewName();
    void closeAndSaveFails();
    void closeWithoutChangeDoesNotAsk();
    void closeBoxAnswers();
    void closeInMdiArea();
    void closeEventIsIgnored();
    void embeddedEditorLeavesTheWindowAlone();
    void positionsOfAText();
    void commandOpensTheEditor();
    void programOpensTheEditor();
    void commandWithFolder();
    void longFileOpensAtItsFirstScreen();
};

// Files -------------------------------------------------------------------------------------------

void editorFiles::loadInCodePages() {
    const QByteArray utf8 = QString("сообщить(\"Ёж\");\nx=1;\n").toUtf8();
    const QByteArray cp1251 = QByteArray::fromHex("f1eeeee1f9e8f2fc28") + "\"" +
                              QByteArray::fromHex("a8e6") + "\");\nx=1;\n";
    const QByteArray cp866 = QByteArray::fromHex("e1aeaea1e9a8e2ec28") + "\"" +
                             QByteArray::fromHex("f0a6") + "\");\nx=1;\n";
    const QString expected = "сообщить(\"Ёж\");\nx=1;";
    const struct {
        const char* name;
        QByteArray bytes;
        localString::possibleCodePage codePage;
    } files[] = {{"utf8.prg", utf8, localString::codePageUtf8},
                 {"cp1251.prg", cp1251, localString::codePageCP1251},
                 {"cp866.prg", cp866, localString::codePageCP866}};
    for (const auto& file : files) {
        write(file.name, file.bytes);
        testedEditor edit(u"before");
        QVERIFY(edit.load(QString(file.name).toStdU16String(), file.codePage));
        QCOMPARE(text(edit), expected);
        QCOMPARE(shownTitle(edit), QString(file.name));
        QCOMPARE(edit.fileName(), QString(file.name).toStdU16String());
        QVERIFY(!edit.document()->isModified());
        // Saved it is UTF-8, whatever it was.
        QVERIFY(edit.saveSlot());
        QCOMPARE(read(file.name), expected.toUtf8());
    }
}

void editorFiles::loadMissingAsksForAFile() {
    write("there.prg", "x=1;");
    QVERIFY(QDir().mkpath("prgTest"));
    testedEditor edit(u"before", u"old");
    QString title;
    answer<QFileDialog> dialog([&](QFileDialog& shown) {
        title = shown.windowTitle();
        QCOMPARE(shown.directory(), QDir("prgTest"));
        QCOMPARE(shown.nameFilters(), QStringList{"*.prg *.prg"});
        shown.findChild<QLineEdit*>()->setText(path("there.prg"));
        QTest::keyClick(shown.findChild<QLineEdit*>(), Qt::Key_Return);
    });
    QVERIFY(edit.load(u"missing.prg", localString::codePageUtf8));
    QCOMPARE(dialog.count, 1);
    QCOMPARE(title, QString("Open formFile "));
    QCOMPARE(text(edit), QString("x=1;"));
    QCOMPARE(edit.fileName(), path("there.prg").toStdU16String());
}

void editorFiles::loadMissingNothingChosen() {
    testedEditor edit(u"before", u"old");
    answer<QFileDialog> dialog([](QFileDialog& shown) { shown.reject(); });
    QVERIFY(!edit.load(u"missing.prg", localString::codePageUtf8));
    QCOMPARE(dialog.count, 1);
    QCOMPARE(text(edit), QString("old"));
    QCOMPARE(edit.fileName(), std::u16string(u"before"));
}

void editorFiles::loadFolderReports() {
    QVERIFY(QDir().mkpath("folder"));
    testedEditor edit(u"before", u"old");
    outputCapture output;
    QVERIFY(!edit.load(u"folder", localString::codePageUtf8));
    QVERIFY2(output.text().startsWith("Error reading file  [folder] "), qPrintable(output.text()));
    QVERIFY2(output.text().trimmed().size() > qsizetype(strlen("Error reading file  [folder]")),
             qPrintable(output.text()));
    QCOMPARE(text(edit), QString("old"));
    QCOMPARE(edit.fileName(), std::u16string(u"before"));
    QCOMPARE(shownTitle(edit), QString("before"));
}

void editorFiles::saveKeys() {
    for (const int key : {int(Qt::Key_S), 0x42b}) {
        testedEditor edit(u"saved.prg", QString("x=%1;").arg(key).toStdU16String());
        press(edit, key, Qt::ControlModifier);
        QCOMPARE(read("saved.prg"), QString("x=%1;").arg(key).toUtf8());
        edit.textSet(u"other");
        answer<QFileDialog> dialog([&](QFileDialog& shown) {
            shown.findChild<QLineEdit*>()->setText(path(QString("as%1.prg").arg(key)));
            QTest::keyClick(shown.findChild<QLineEdit*>(), Qt::Key_Return);
        });
        press(edit, key, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(dialog.count, 1);
        QCOMPARE(read(QString("as%1.prg").arg(key)), QByteArray("other"));
    }
}

void editorFiles::saveWritesUtf8() {
    testedEditor edit(u"saved.prg", u"Ёлка\r\n\tдва\n\n");
    QVERIFY(edit.saveSlot());
    QCOMPARE(read("saved.prg"), QString("Ёлка\n\tдва\n\n").toUtf8());
}

void editorFiles::saveFails() {
    for (const std::u16string& name : {std::u16string(u"no/such/folder/a.prg"), std::u16string()}) {
        recordingHost host;
        testedEditor edit(name, u"text");
        QTest::keyClick(&edit, Qt::Key_X);
        outputCapture output;
        QVERIFY(!edit.saveSlot());
        QCOMPARE(output.text(), QString("Файл не сохранён!\n"));
        QCOMPARE(text(edit), QString("xtext"));
        QVERIFY(edit.document()->isModified());
        QCOMPARE(int(host.reports.size()), name.empty() ? 0 : 1);
        if (!name.empty()) {
            const localReport& box = host.reports[0];
            QVERIFY(box.kind == localReport::Kind::critical);
            QVERIFY(box.title == u"save");
            QVERIFY(box.text.starts_with(u"Ошибка записи файла [no/such/folder/a.prg]\n"));
        }
    }
}

void editorFiles::saveToAFullDisk() {
    recordingHost host;
    testedEditor edit(u"/dev/full", u"text");
    QTest::keyClick(&edit, Qt::Key_X);
    outputCapture output;
    QTest::keyClick(&edit, Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(output.text(), QString("Файл не сохранён!\n"));
    QCOMPARE(int(host.reports.size()), 1);
    QCOMPARE(text(edit), QString("xtext"));
    QCOMPARE(shownTitle(edit), QString("/dev/full*"));
    QVERIFY(!edit.windowMayClose());
    QCOMPARE(edit.asked, 1);
}

void editorFiles::saveAFileThatIsGone() {
    write("gone.prg", "x");
    testedEditor edit(u"");
    QVERIFY(edit.load(u"gone.prg", localString::codePageUtf8));
    QVERIFY(QFile::remove("gone.prg"));
    QTest::keyClick(&edit, Qt::Key_Y);
    QTest::keyClick(&edit, Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(read("gone.prg"), QByteArray("yx"));
    QCOMPARE(shownTitle(edit), QString("gone.prg"));
}

void editorFiles::saveInTheFolderOfTheFile() {
    const auto changeFolder = [](const QString& name) {
        QVERIFY(localPlatform::changeWorkingDirectory(name.toStdU16String()));
    };
    write("here.prg", "x");
    QVERIFY(QDir().mkpath("elsewhere"));
    testedEditor edit(u"");
    QVERIFY(edit.load(u"here.prg", localString::codePageUtf8));
    QTest::keyClick(&edit, Qt::Key_Y);
    changeFolder("elsewhere");
    const bool saved = edit.saveSlot();
    const bool strayed = QFile::exists("here.prg");
    testedEditor whole(path("whole.prg").toStdU16String(), u"z");
    changeFolder("..");
    QVERIFY(saved);
    QVERIFY(!strayed);
    QCOMPARE(read("here.prg"), QByteArray("yx"));
    QCOMPARE(shownTitle(edit), QString("here.prg"));
    QVERIFY(whole.saveSlot());
    QCOMPARE(read("whole.prg"), QByteArray("z"));
}

void editorFiles::namesWithBlanksAndRussianLetters() {
    const QString name = "мои цены 1 ёж.prg";
    write(name, "x");
    testedEditor edit(u"");
    QVERIFY(edit.load(name.toStdU16String(), localString::codePageUtf8));
    QCOMPARE(shownTitle(edit), name);
    QTest::keyClick(&edit, Qt::Key_Y);
    QVERIFY(edit.saveSlot());
    QCOMPARE(read(name), QByteArray("yx"));
    // Blanks around a name are no part of it.
    write(" blank.prg ", "other");
    write("blank.prg", "trimmed");
    QVERIFY(edit.load(u" blank.prg ", localString::codePageUtf8));
    QCOMPARE(edit.fileName(), std::u16string(u"blank.prg"));
    QCOMPARE(text(edit), QString("trimmed"));
}

void editorFiles::nameTooLongForTheSystem() {
    recordingHost host;
    const QString name = QString(300, QChar(u'Щ')) + ".prg";
    testedEditor edit(name.toStdU16String(), u"x");
    QTest::keyClick(&edit, Qt::Key_Y);
    outputCapture output;
    QVERIFY(!edit.saveSlot());
    QCOMPARE(output.text(), QString("Файл не сохранён!\n"));
    QCOMPARE(shownTitle(edit), name + "*");
    answer<QFileDialog> dialog([](QFileDialog& shown) { shown.reject(); });
    QVERIFY(!edit.load(name.toStdU16String(), localString::codePageUtf8));
    QCOMPARE(dialog.count, 1);
    QCOMPARE(text(edit), QString("yx"));
}

void editorFiles::lineEndsOfAnotherSystem() {
    write("ends.prg", "if x\r\nthen\r\n\r\nx=1;\r\n");
    testedEditor edit(u"");
    QVERIFY(edit.load(u"ends.prg", localString::codePageUtf8));
    // The line end before the file's last line feed leaves an empty line.
    QCOMPARE(text(edit), QString("if x\nthen\n\nx=1;\n"));
    QCOMPARE(edit.blockCount(), 5);
    QVERIFY(hasColour(formatAt(edit, 1, 3), Qt::red, false));
    QVERIFY(edit.saveSlot());
    QCOMPARE(read("ends.prg"), QByteArray("if x\nthen\n\nx=1;\n"));
}

void editorFiles::charactersThatTheFileCannotHold() {
    write("loss.prg", "old");
    testedEditor edit(u"loss.prg", u"x;\n// Ёж № 5 — Є 🙂");
    QTest::keyClick(&edit, Qt::Key_Y);
    outputCapture output;
    QVERIFY(!edit.saveSlot());
    QCOMPARE(output.text(), QString("Файл не сохранён!\n"));
    QCOMPARE(
        edit.questions,
        QStringList{"Знаков, которых файл не может сохранить: 5. Первый из них, \"№\", стоит в "
                    "строке 2. В файле они будут потеряны. Сохранить его?"});
    QCOMPARE(read("loss.prg"), QByteArray("old"));
    QCOMPARE(shownTitle(edit), QString("loss.prg*"));
    QVERIFY(!edit.saveAsSlot());
    QCOMPARE(edit.questions.size(), 2);

    edit.loses = true;
    QVERIFY(edit.saveSlot());
    QCOMPARE(edit.questions.size(), 3);
    QCOMPARE(shownTitle(edit), QString("loss.prg"));
    QCOMPARE(read("loss.prg"),
             QByteArray("yx;\n// ") + QString("Ёж").toUtf8() + " \xFF 5 \xFF \xFF \xFF\xFF");
    // Agreed once; more to lose is asked for again.
    QVERIFY(edit.saveSlot());
    QCOMPARE(edit.questions.size(), 3);
    edit.insertPlainText("🙂«");
    QVERIFY(edit.saveSlot());
    QCOMPARE(edit.questions.size(), 4);
    QVERIFY2(
        edit.questions.last().startsWith(
            "Знаков, которых файл не может сохранить: 8. Первый из них, \"🙂\", стоит в строке 1."),
        qPrintable(edit.questions.last()));
    // Another text is another question.
    edit.textSet(u"№");
    QVERIFY(edit.saveSlot());
    QCOMPARE(edit.questions.size(), 5);
    // A letter of which the file's bytes read together with the next as a letter.
    edit.textSet(u"\u00D0\u00A0");
    QVERIFY(edit.saveSlot());
    QCOMPARE(edit.questions.size(), 6);
}

void editorFiles::bytesThatCannotBeRead() {
    const struct {
        const char* name;
        QByteArray bytes;
        localString::possibleCodePage codePage;
        const char* asked;
    } cases[] = {
        {"mark.prg", QByteArray::fromHex("efbbbf") + "x=1;", localString::codePageUtf8, "3"},
        {"number.prg", QString("x=1; // №").toUtf8(), localString::codePageUtf8, "3"},
        {"cp1251.prg", QByteArray::fromHex("b9"), localString::codePageCP1251, "1"},
        {"cp866.prg", QByteArray::fromHex("fcff"), localString::codePageCP866, "2"}};
    for (const auto& each : cases) {
        write(each.name, each.bytes);
        testedEditor edit(u"");
        QVERIFY(edit.load(QString(each.name).toStdU16String(), each.codePage));
        outputCapture output;
        QVERIFY(!edit.saveSlot());
        QCOMPARE(edit.questions.size(), 1);
        QVERIFY2(edit.questions[0].startsWith(
                     QString("Знаков, которых файл не может сохранить: %1. ").arg(each.asked)),
                 qPrintable(edit.questions[0]));
        QCOMPARE(read(each.name), each.bytes);
    }
}

void editorFiles::lossBoxAnswers() {
    for (const auto button : {QMessageBox::Cancel, QMessageBox::Save}) {
        write("loss.prg", "old");
        localVclWidgetEditor edit(u"loss.prg", u"№");
        outputCapture output;
        answer<QMessageBox> box([&](QMessageBox& shown) {
            QCOMPARE(shown.defaultButton(), shown.button(QMessageBox::Cancel));
            QVERIFY(saveScreenshot(shown, "editorLoss"));
            shown.button(button)->click();
        });
        QCOMPARE(edit.saveSlot(), button == QMessageBox::Save);
        QCOMPARE(box.count, 1);
        QCOMPARE(read("loss.prg"),
                 button == QMessageBox::Save ? QByteArray("\xFF") : QByteArray("old"));
    }
}

void editorFiles::saveAs() {
    testedEditor edit(u"first.prg", u"");
    QTest::keyClicks(&edit, "text");
    QString title;
    QString started;
    answer<QFileDialog> dialog([&](QFileDialog& shown) {
        title = shown.windowTitle();
        QCOMPARE(shown.nameFilters(), QStringList{"*.*"});
        started = shown.findChild<QLineEdit*>()->text();
        shown.findChild<QLineEdit*>()->setText(path("second.prg"));
        QTest::keyClick(shown.findChild<QLineEdit*>(), Qt::Key_Return);
    });
    QVERIFY(edit.saveAsSlot());
    QCOMPARE(dialog.count, 1);
    QCOMPARE(title, QString("SaveAs"));
    QCOMPARE(started, QString("first.prg"));
    QCOMPARE(read("second.prg"), QByteArray("text"));
    QVERIFY(!QFile::exists("first.prg"));
    QCOMPARE(edit.fileName(), path("second.prg").toStdU16String());
    QCOMPARE(shownTitle(edit), path("second.prg"));
}

void editorFiles::saveAsNothingChosen() {
    testedEditor edit(u"first.prg", u"text");
    outputCapture output;
    answer<QFileDialog> dialog([](QFileDialog& shown) { shown.reject(); });
    QVERIFY(!edit.saveAsSlot());
    QCOMPARE(output.text(), QString("Файл не сохранён!\n"));
    QCOMPARE(edit.fileName(), std::u16string(u"first.prg"));
}

void editorFiles::saveAsFails() {
    recordingHost host;
    write("taken", "");
    testedEditor edit(u"first.prg", u"text");
    outputCapture output;
    // A file stands where a folder would have to be.
    answer<QFileDialog> dialog([&](QFileDialog& shown) {
        shown.findChild<QLineEdit*>()->setText(path("taken/second.prg"));
        QTest::keyClick(shown.findChild<QLineEdit*>(), Qt::Key_Return);
    });
    QVERIFY(!edit.saveAsSlot());
    QCOMPARE(output.text(), QString("Файл не сохранён!\n"));
    QCOMPARE(int(host.reports.size()), 1);
    QCOMPARE(edit.fileName(), std::u16string(u"first.prg"));
    QCOMPARE(text(edit), QString("text"));
}

void editorFiles::commonSaveDialog() {
    QString title;
    answer<QFileDialog> dialog([&](QFileDialog& shown) {
        title = shown.windowTitle();
        shown.findChild<QLineEdit*>()->setText(path("common.txt"));
        QTest::keyClick(shown.findChild<QLineEdit*>(), Qt::Key_Return);
    });
    const std::u16string name =
        localVclTextSaveDialog(localString::codePageCP1251, u"ёж", "Сохранить", "*.txt", path(""));
    QCOMPARE(title, QString("Сохранить"));
    QCOMPARE(name, path("common.txt").toStdU16String());
    QCOMPARE(read("common.txt"), QByteArray::fromHex("b8e6"));
    answer<QFileDialog> rejected([](QFileDialog& shown) { shown.reject(); });
    QVERIFY(
        localVclTextSaveDialog(localString::codePageUtf8, u"x", "t", "*.txt", path("")).empty());
}

void editorFiles::openKey() {
    write("opened.prg", "x=2;");
    testedEditor edit(u"first.prg", u"text");
    edit.show();
    answer<QFileDialog> dialog([&](QFileDialog& shown) {
        shown.findChild<QLineEdit*>()->setText(path("opened.prg"));
        QTest::keyClick(shown.findChild<QLineEdit*>(), Qt::Key_Return);
    });
    QTest::keyClick(&edit, Qt::Key_O, Qt::ControlModifier);
    QCOMPARE(dialog.count, 1);
    QCOMPARE(text(edit), QString("text"));
    const auto windows = QApplication::topLevelWidgets();
    const localVclWidgetEditor* opened = nullptr;
    for (QWidget* const window : windows) {
        if (qobject_cast<localMainWindow*>(window) != nullptr) {
            QVERIFY(window->isVisible());
            opened = window->findChild<localVclWidgetEditor*>();
        }
    }
    QVERIFY(opened != nullptr);
    QCOMPARE(text(*opened), QString("x=2;"));
}

// The window --------------------------------------------------------------------------------------

void editorFiles::titleMarksAChangedText() {
    auto* const edit = new testedEditor(u"title.prg", u"x");
    edit->openWindow();
    QWidget& window = *edit->window();
    QVERIFY(&window != edit);
    QCOMPARE(shownTitle(window), QString("title.prg"));
    QTest::keyClick(edit, Qt::Key_Y);
    QCOMPARE(shownTitle(window), QString("title.prg*"));
    QCOMPARE(shownTitle(*edit), QString("title.prg*"));
    QVERIFY(saveScreenshot(window, "editorChanged"));
    edit->undo();
    QCOMPARE(shownTitle(window), QString("title.prg"));
    QTest::keyClick(edit, Qt::Key_Y);
    QCOMPARE(shownTitle(window), QString("title.prg*"));
    QTest::keyClick(edit, Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(shownTitle(window), QString("title.prg"));
    QTest::keyClick(edit, Qt::Key_Y);
    write("other.prg", "z");
    QVERIFY(edit->load(u"other.prg", localString::codePageUtf8));
    QCOMPARE(shownTitle(window), QString("other.prg"));
}

void editorFiles::titleOfANameWithTheMark() {
    // Doubled, the toolkit shows the signs themselves.
    testedEditor edit(u"a[*]b.prg", u"x");
    QCOMPARE(edit.windowTitle(), QString("a[*][*]b.prg[*]"));
}

void editorFiles::closeDiscards() {
    write("close.prg", "old");
    QPointer<testedEditor> edit = new testedEditor(u"close.prg", u"old");
    edit->openWindow();
    QTest::keyClick(edit, Qt::Key_Y);
    edit->nextAnswer = localVclWidgetEditor::CloseAnswer::discard;
    QVERIFY(edit->window()->close());
    QCOMPARE(edit->asked, 1);
    QTRY_VERIFY(edit.isNull());
    QCOMPARE(read("close.prg"), QByteArray("old"));
}

void editorFiles::closeCancelled() {
    auto* const edit = new testedEditor(u"close.prg", u"old");
    edit->openWindow();
    QTest::keyClick(edit, Qt::Key_Y);
    QVERIFY(!edit->window()->close());
    QCOMPARE(edit->asked, 1);
    QVERIFY(edit->window()->isVisible());
    QCOMPARE(text(*edit), QString("yold"));
}

void editorFiles::closeSaves() {
    write("close.prg", "old");
    QPointer<testedEditor> edit = new testedEditor(u"close.prg", u"old");
    edit->openWindow();
    QTest::keyClick(edit, Qt::Key_Y);
    edit->nextAnswer = localVclWidgetEditor::CloseAnswer::save;
    QVERIFY(edit->window()->close());
    QTRY_VERIFY(edit.isNull());
    QCOMPARE(read("close.prg"), QByteArray("yold"));
}

void editorFiles::closeSavesUnderANewName() {
    QPointer<testedEditor> edit = new testedEditor(u"", u"old");
    edit->openWindow();
    QTest::keyClick(edit, Qt::Key_Y);
    edit->nextAnswer = localVclWidgetEditor::CloseAnswer::save;
    {
        outputCapture output;
        answer<QFileDialog> rejected([](QFileDialog& shown) { shown.reject(); });
        QVERIFY(!edit->window()->close());
        QCOMPARE(rejected.count, 1);
    }
    answer<QFileDialog> dialog([&](QFileDialog& shown) {
        shown.findChild<QLineEdit*>()->setText(path("new name.prg"));
        QTest::keyClick(shown.findChild<QLineEdit*>(), Qt::Key_Return);
    });
    QVERIFY(edit->window()->close());
    QTRY_VERIFY(edit.isNull());
    QCOMPARE(read("new name.prg"), QByteArray("yold"));
}

void editorFiles::closeAndSaveFails() {
    recordingHost host;
    auto* const edit = new testedEditor(u"no/such/folder/a.prg", u"old");
    edit->openWindow();
    QTest::keyClick(edit, Qt::Key_Y);
    edit->nextAnswer = localVclWidgetEditor::CloseAnswer::save;
    outputCapture output;
    QVERIFY(!edit->window()->close());
    QCOMPARE(output.text(), QString("Файл не сохранён!\n"));
    QCOMPARE(int(host.reports.size()), 1);
    QVERIFY(edit->window()->isVisible());
}

void editorFiles::closeWithoutChangeDoesNotAsk() {
    QPointer<testedEditor> edit = new testedEditor(u"close.prg", u"old");
    edit->openWindow();
    QVERIFY(edit->window()->close());
    QTRY_VERIFY(edit.isNull());
}

void editorFiles::closeBoxAnswers() {
    const struct {
        QMessageBox::StandardButton button;
        bool closes;
        QByteArray file;
    } cases[] = {{QMessageBox::Cancel, false, "old"},
                 {QMessageBox::Discard, true, "old"},
                 {QMessageBox::Save, true, "yold"}};
    for (const auto& each : cases) {
        write("close.prg", "old");
        QPointer<localVclWidgetEditor> edit =
            localVclWidgetEditor::open(u"close.prg", localString::codePageUtf8);
        QVERIFY(edit);
        QTest::keyClick(edit, Qt::Key_Y);
        answer<QMessageBox> box([&](QMessageBox& shown) {
            if (each.closes) {
                QVERIFY(saveScreenshot(shown, "editorClose"));
            }
            shown.button(each.button)->click();
        });
        QCOMPARE(edit->window()->close(), each.closes);
        QCOMPARE(box.count, 1);
        QCOMPARE(read("close.prg"), each.file);
        if (!each.closes) {
            delete edit->window();
        }
        QTRY_VERIFY(edit.isNull());
    }
}

void editorFiles::closeInMdiArea() {
    QMainWindow console;
    auto* const area = new QMdiArea;
    area->setObjectName("localMdiArea");
    console.setCentralWidget(area);
    console.resize(900, 700);
    console.show();
    QPointer<testedEditor> edit = new testedEditor(u"sub.prg", u"old");
    edit->openWindow();
    QCOMPARE(area->subWindowList().size(), 1);
    QMdiSubWindow& window = *area->subWindowList()[0];
    QTest::keyClick(edit, Qt::Key_Y);
    QCOMPARE(shownTitle(window), QString("sub.prg*"));
    QCOMPARE(shownTitle(console), QString());
    window.close();
    QCOMPARE(edit->asked, 1);
    QVERIFY(window.isVisible());
    edit->nextAnswer = localVclWidgetEditor::CloseAnswer::discard;
    window.close();
    QTRY_VERIFY(edit.isNull());
    QTRY_COMPARE(area->subWindowList().size(), 0);
}

void editorFiles::closeEventIsIgnored() {
    testedEditor edit(u"a", u"b");
    edit.show();
    outputCapture output;
    QVERIFY(!edit.close());
    QVERIFY(edit.isVisible());
    const QRegularExpression line("^\\d\\d\\.\\d\\d\\.\\d{4} \\d\\d:\\d\\d:\\d\\d "
                                  "closeEvent func: closeEvent file: .* line: \\d+\n$");
    QVERIFY2(line.match(output.text()).hasMatch(), qPrintable(output.text()));
}

void editorFiles::embeddedEditorLeavesTheWindowAlone() {
    QMainWindow window;
    window.setWindowTitle("form");
    auto* const edit = new testedEditor(u"module", u"x");
    window.setCentralWidget(edit);
    window.show();
    QTest::keyClick(edit, Qt::Key_Y);
    QCOMPARE(window.windowTitle(), QString("form"));
    QVERIFY(!window.isWindowModified());
    QVERIFY(window.close());
    QCOMPARE(edit->asked, 0);
}

void editorFiles::positionsOfAText() {
    testedEditor edit(u"", u"ab\r\ncd\r\nef\ngh");
    QCOMPARE(text(edit), QString("ab\ncd\nef\ngh"));
    const struct {
        std::size_t position;
        int line;
        int column;
    } cases[] = {{0, 0, 0}, {2, 0, 2},  {4, 1, 0},  {8, 2, 0},
                 {9, 2, 1}, {11, 3, 0}, {13, 3, 2}, {99, 3, 2}};
    for (const auto& each : cases) {
        edit.positionShow(each.position);
        QCOMPARE(edit.textCursor().blockNumber(), each.line);
        QCOMPARE(edit.textCursor().positionInBlock(), each.column);
    }
    testedEditor empty(u"");
    empty.positionShow(7);
    QCOMPARE(empty.textCursor().position(), 0);
}

void editorFiles::commandOpensTheEditor() {
    localVclHost host;
    localHost::install(&host);
    localContextUTF8 context;
    write("old.prg", QByteArray::fromHex("f1eeeee1f9e8f2fc"));
    const auto command = [&](const QString& line) {
        int status = localErrorTypeOK;
        std::uint32_t pos = 0;
        outputCapture output;
        const bool done = localInterpretatorUTF8::scanStringGetOperatorAndExec(
            status, line.toStdU16String(), pos, &context, false);
        return done ? status : -status;
    };
    const auto shown = [] {
        QStringList texts;
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            if (qobject_cast<localMainWindow*>(window) != nullptr && window->isVisible()) {
                texts.append(shownTitle(*window) + "|" +
                             text(*window->findChild<localVclWidgetEditor*>()));
            }
        }
        texts.sort();
        return texts;
    };
    QCOMPARE(command("EDIT COMMAND new.prg"), int(localErrorTypeOK));
    QCOMPARE(read("new.prg"), QByteArray("\n"));
    QCOMPARE(shown(), QStringList{"new.prg|"});
    QCOMPARE(command("EDIT COMM CP1251 old.prg"), int(localErrorTypeOK));
    QCOMPARE(shown(), (QStringList{"new.prg|", "old.prg|сообщить"}));
    localHost::install(nullptr);
}

void editorFiles::programOpensTheEditor() {
    localVclHost host;
    localHost::install(&host);
    localContextUTF8 context;
    write("shown.prg", "x=1;");
    write("opens.prg", "EDIT COMMAND shown.prg ;\ny = 2;\n");
    int status = localErrorTypeOK;
    std::uint32_t pos = 0;
    outputCapture output;
    QVERIFY(localInterpretatorUTF8::scanStringGetOperatorAndExec(status, u"DO opens.prg", pos,
                                                                 &context, false));
    localHost::install(nullptr);
    // The command acts when the program is compiled, too.
    int windows = 0;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (qobject_cast<localMainWindow*>(window) != nullptr) {
            QCOMPARE(text(*window->findChild<localVclWidgetEditor*>()), QString("x=1;"));
            ++windows;
        }
    }
    QCOMPARE(windows, 2);
}

void editorFiles::commandWithFolder() {
    QVERIFY(QDir().mkpath("folder"));
    localVclHost host;
    outputCapture output;
    // There is an editor, it just has nothing to show.
    QVERIFY(host.openEditor(u"folder", localString::codePageUtf8));
    QVERIFY(output.text().startsWith("Error reading file  [folder] "));
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        QVERIFY(qobject_cast<localMainWindow*>(window) == nullptr);
    }
}

void editorFiles::longFileOpensAtItsFirstScreen() {
    write("long.prg", manyLines(50000).toUtf8());
    localVclWidgetEditor* const edit =
        localVclWidgetEditor::open(u"long.prg", localString::codePageUtf8);
    QVERIFY(edit != nullptr);
    QTest::qWait(100);
    QCOMPARE(edit->blockCount(), 50000);
    QVERIFY(hasColour(formatAt(*edit, 20, 0), Qt::red, false));
    QVERIFY(edit->highlighter().colouredCount() < 500);
    edit->lineShow(49990);
    QTest::qWait(50);
    QVERIFY(saveScreenshot(*edit->window(), "editorLong"));
}

QTEST_MAIN(editorFiles)
#include "editorFiles.moc"
