// Forms whose program is under DEBUG: the other thread is in the language while the window closes.
#include "debugTest.h"
#include "localForm/edit/localVclWidgetEdit.h"
#include "localForm/run/localForm.h"

class formDebug : public debugTest {
    Q_OBJECT

    static QPointer<localForm> lastForm() {
        return localForm::opened().empty() ? nullptr : localForm::opened().back();
    }
    static void writeForm() {
        consoleTest::write("form.xml",
                           "<FormMd><Form w=\"200\" h=\"100\"><Widgets><Widget WidgetType=\"Edit\" "
                           "Identifier=\"a\" Type=\"Строка\" x=\"5\" y=\"5\" w=\"90\" h=\"25\"/>"
                           "<Widget WidgetType=\"Label\" Formula=\"a\" x=\"5\" y=\"40\" w=\"90\" "
                           "h=\"25\"/></Widgets></Form></FormMd>");
    }

private slots:
    void aFormOpenedByItCloses() {
        writeForm();
        const QString program = "FORMOPEN(\"form.xml\");\n? \"behind\";\n? \"end\";\n";
        debug(program);
        step();
        const QPointer<localForm> form = lastForm();
        QVERIFY(form != nullptr);
        QTest::keyClicks(form->edits().at(0)->editor(), "typed");
        QTest::keyClick(form->edits().at(0)->editor(), Qt::Key_Return);
        host_.answers = {localReport::Button::yes};
        QVERIFY(form->window()->close());
        QTRY_VERIFY(form == nullptr);
        QCOMPARE(step(), int(program.indexOf("? \"end\"")));
        step();
    }

    // The question is answered while a long statement works; the form goes behind it.
    void aFormClosedWhileAStatementWorks() {
        writeForm();
        defineLines();
        debug("FORMOPEN(\"form.xml\");\nlines(20000);\n? \"end\";\n");
        step();
        const QPointer<localForm> form = lastForm();
        QVERIFY(form != nullptr);
        shown().thread()->fromConsole(u"STEP");
        QVERIFY(workerHasTheTurn());
        host_.answers = {localReport::Button::yes};
        form->window()->close();
        QVERIFY(host_.answers.empty());
        stop();
        QTRY_VERIFY_WITH_TIMEOUT(form == nullptr, 20000);
        step();
    }

    void theConsoleAsksFormsBeforeItCloses() {
        writeForm();
        enter("FORMOPEN(\"form.xml\")");
        const QPointer<localForm> form = lastForm();
        QVERIFY(form != nullptr);
        host_.answers = {localReport::Button::yes, localReport::Button::no};
        QVERIFY(!shown().windowMayClose());
        QVERIFY(form != nullptr);
        host_.answers = {localReport::Button::yes, localReport::Button::yes};
        QVERIFY(shown().windowMayClose());
        QTRY_VERIFY(form == nullptr);
    }
};

QTEST_MAIN(formDebug)
#include "formDebug.moc"
