// The text browser and the entries of the language that open it and the help browser.
#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QTest>
#include <QTextBlock>

#include <clocale>

#include "browserTest.h"
#include "localConsole/help/localConsoleHelpBrowser.h"
#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/program/localCommand.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localVCL/host/localVclHost.h"
#include "localVCL/textBrowser/localVclTextBrowser.h"
#include "localVCL/window/localMainWindow.h"
#include "madeOf.h"
#include "screenshot.h"
#include "windowTest.h"

using browserTest::clickLink;

namespace {

QList<localMainWindow*> windows() {
    QList<localMainWindow*> found;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (auto* const main = qobject_cast<localMainWindow*>(window)) {
            found.append(main);
        }
    }
    return found;
}

// The browser of the only window; null when there is another number of windows or another widget.
template <typename Browser>
Browser* shownBrowser(const QString& title) {
    const QList<localMainWindow*> shown = windows();
    return shown.size() == 1 && shown[0]->windowTitle() == title
               ? qobject_cast<Browser*>(shown[0]->centralWidget())
               : nullptr;
}

void write(const QString& name, const QByteArray& bytes) {
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

}  // namespace

class textBrowser : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        std::setlocale(LC_NUMERIC, "C");
        QVERIFY(QDir::setCurrent(folder_.path()));
        localHost::install(&host_);
        addWhatKorvoIsMadeOf();
    }
    void cleanup() { qDeleteAll(windows()); }
    void cleanupTestCase() { localHost::install(nullptr); }

    void testOpensTheStartPage() {
        const outputCapture output;
        QCOMPARE(act("? ___TEST()"), int(localErrorTypeOK));
        QVERIFY2(output.text().startsWith(" метод ___test() func: "), qPrintable(output.text()));
        QVERIFY2(output.text().endsWith("\n1\n"), qPrintable(output.text()));
        auto* const browser = shownBrowser<localVclTextBrowser>("textBrowser");
        QVERIFY(browser != nullptr);
        QVERIFY(QTest::qWaitForWindowExposed(browser->window()));
        const QString text = browser->toPlainText();
        QVERIFY(text.contains("Это главная страница помощи по интерпретатору."));
        QVERIFY(text.contains("F1 или команда HELP выведет краткую помощь по основным командам."));
        QVERIFY(text.contains("Alt+F1 или команда MANUAL откроет интерактивную систему помощи"));
        QVERIFY(browser->openLinks());
        QVERIFY(!browser->openExternalLinks());
        QVERIFY(browser->names().isEmpty());
        QCOMPARE(browser->current(), -1);
        QVERIFY(saveScreenshot(*browser->window(), QStringLiteral("textBrowser")));
    }

    void testShowsAText_data() {
        QTest::addColumn<QString>("argument");
        QTest::addColumn<QString>("text");
        QTest::newRow("html") << "<B>Прайс</B>-лист"
                              << "Прайс-лист";
        QTest::newRow("plain") << "Прайс"
                               << "Прайс";
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("begins as a book") << "{Прайс}"
                                          << "{Прайс}";
        QTest::newRow("an array") << "[1]"
                                  << "[1]";
    }
    void testShowsAText() {
        QFETCH(QString, argument);
        QFETCH(QString, text);
        const outputCapture output;
        QCOMPARE(act("___TEST(\"" + argument + "\")"), int(localErrorTypeOK));
        auto* const browser = shownBrowser<localVclTextBrowser>("textBrowser");
        QVERIFY(browser != nullptr);
        QCOMPARE(browser->toPlainText(), text);
    }

    void testShowsABook() {
        const outputCapture output;
        QCOMPARE(act("___TEST('  {\"main\": \"Книга цен\"}')"), int(localErrorTypeOK));
        auto* const browser = shownBrowser<localConsoleHelpBrowser>("Help");
        QVERIFY(browser != nullptr);
        QCOMPARE(browser->toPlainText().trimmed(), QStringLiteral("Книга цен"));
        QCOMPARE(output.text().count('\n'), 1);
    }

    void testChecksItsArguments() {
        const outputCapture output;
        QCOMPARE(act("___TEST(1)"), int(localErrorTypePARAMETERTYPE));
        QCOMPARE(act("___TEST(\"a\",\"b\")"), int(localErrorTypePARAMETERCOUNT));
        QCOMPARE(act("___TEST__TEXTBROWSER()"), int(localErrorTypePARAMETERCOUNT));
        QCOMPARE(act("___TEST__TEXTBROWSER(1)"), int(localErrorTypePARAMETERTYPE));
        act("table=CREATEOBJECT(\"VALUETABLE\")");
        QCOMPARE(act("___TEST__TEXTBROWSER(table)"), int(localErrorTypePARAMETERTYPE));
        QVERIFY(windows().isEmpty());
    }

    void emptyListIsAnError() {
        const outputCapture output;
        act("empty=CREATEOBJECT(\"VALUELIST\")");
        QCOMPARE(act("___TEST__TEXTBROWSER(empty)"), int(localErrorTypeOK));
        QCOMPARE(output.text(), QStringLiteral(" Ошибка! Пустой список значений\n"));
        QVERIFY(windows().isEmpty());
    }

    void listIsShownAsPages() {
        const outputCapture output;
        act("pages=CREATEOBJECT(\"VALUELIST\")");
        act("pages.VALUEADD('Цены: <a href=\"price.htm\">список</a>',\"main.htm\")");
        act("pages.VALUEADD('Назад: <a href=\"#main.htm\">начало</a>',\"price.htm\")");
        QCOMPARE(act("___TEST__TEXTBROWSER(pages)"), int(localErrorTypeOK));
        auto* const browser = shownBrowser<localConsoleHelpBrowser>("Help");
        QVERIFY(browser != nullptr);
        QVERIFY(QTest::qWaitForWindowExposed(browser->window()));
        QCOMPARE(browser->toPlainText(), QStringLiteral("Цены: список"));
        QVERIFY(clickLink(*browser, "список"));
        QCOMPARE(browser->toPlainText(), QStringLiteral("Назад: начало"));
        QVERIFY(clickLink(*browser, "начало"));
        QCOMPARE(browser->toPlainText(), QStringLiteral("Цены: список"));
    }

    void listWithoutAMainPageShowsTheListOfPages() {
        const outputCapture output;
        act("other=CREATEOBJECT(\"VALUELIST\")");
        act("other.VALUEADD(\"Цены\",\"price.htm\")");
        QCOMPARE(act("___TEST__TEXTBROWSER(other)"), int(localErrorTypeOK));
        auto* const browser = shownBrowser<localConsoleHelpBrowser>("Help");
        QVERIFY(browser != nullptr);
        QVERIFY(QTest::qWaitForWindowExposed(browser->window()));
        QVERIFY(clickLink(*browser, "price.htm"));
        QCOMPARE(browser->toPlainText(), QStringLiteral("Цены"));
    }

    void linksLeadToFilesInCP1251() {
        // "Цена" and a link to a file with a Russian name.
        write("price.htm", "\xd6\xe5\xed\xe0 <a href=\"\xcf\xf0\xe0\xe9\xf1 1.htm\">next</a>");
        write("Прайс 1.htm", "\xcf\xf0\xe0\xe9\xf1");
        localVclTextBrowser browser;
        browser.setText("<a href=\"price.htm\">first</a>");
        browser.show();
        QVERIFY(clickLink(browser, "first"));
        QCOMPARE(browser.toPlainText(), QStringLiteral("Цена next"));
        QCOMPARE(browser.names(), QStringList({"price.htm"}));
        QCOMPARE(browser.current(), 0);
        QVERIFY(clickLink(browser, "next"));
        QCOMPARE(browser.toPlainText(), QStringLiteral("Прайс"));
        QCOMPARE(browser.names(), QStringList({"price.htm", "Прайс 1.htm"}));
        QCOMPARE(browser.current(), 1);
    }

    void linkWithSignsOfUrlsLeadsToItsFile() {
        write("10 % + 5.htm", "done");
        localVclTextBrowser browser;
        browser.setText("<a href=\"10 % + 5.htm\">first</a>");
        browser.show();
        QVERIFY(clickLink(browser, "first"));
        QCOMPARE(browser.toPlainText(), QStringLiteral("done"));
        QCOMPARE(browser.names(), QStringList({"10 % + 5.htm"}));
    }

    void linkToAnUnreadableFileGivesAText() {
        localVclTextBrowser browser;
        browser.setText("<a href=\"missing.htm\">first</a>");
        browser.show();
        QVERIFY(clickLink(browser, "first"));
        QCOMPARE(browser.toPlainText(), QStringLiteral("Ошибка чтения файла!"));
        QVERIFY(browser.names().isEmpty());
        QCOMPARE(browser.current(), -1);
    }

    void linkToAShownNameStaysInThePage() {
        QByteArray page = "<a href=\"#PAGE.htm\">down</a> <a href=\"#other\">other</a>";
        page += QByteArray("<BR/>line").repeated(200);
        write("page.htm", page + "<a name=\"PAGE.htm\">here</a>");
        localVclTextBrowser browser;
        browser.resize(400, 200);
        browser.show();
        browser.onAnchorClicked(QUrl("page.htm"));
        const QString text = browser.toPlainText();
        QVERIFY(text.startsWith("down other"));
        QVERIFY(clickLink(browser, "down"));
        QCOMPARE(browser.toPlainText(), text);
        QCOMPARE(browser.names(), QStringList({"page.htm"}));
        QVERIFY(browser.verticalScrollBar()->value() > 0);
        browser.verticalScrollBar()->setValue(0);
        QVERIFY(clickLink(browser, "other"));
        QCOMPARE(browser.toPlainText(), QStringLiteral("Ошибка чтения файла!"));
    }

private:
    // Acts on a typed line; gives the status.
    int act(const QString& line) {
        int status = localErrorTypeOK;
        std::uint32_t pos = 0;
        localInterpretatorUTF8::scanStringGetOperatorAndExec(status, line.toStdU16String(), pos,
                                                             &context_, false);
        return status;
    }

    localContextUTF8 context_;
    QTemporaryDir folder_;
    localVclHost host_;
};

QTEST_MAIN(textBrowser)
#include "textBrowser.moc"
