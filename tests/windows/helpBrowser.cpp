// The help browser: pages on the screen, links by mouse, the way back.
#include <QApplication>
#include <QTest>
#include <QTextBlock>

#include <clocale>

#include "browserTest.h"
#include "helpBook.h"
#include "localConsole/help/localConsoleHelpBrowser.h"
#include "localInterpretatorUTF8/text/localString.h"
#include "localInterpretatorUTF8/value/localMemoryManager.h"
#include "localVCL/textBrowser/localVclTextBrowser.h"
#include "screenshot.h"
#include "windowTest.h"

using browserTest::clickLink;

namespace {

class shownBook : public localConsoleHelpBrowser {
public:
    shownBook() {
        resize(760, 620);
        loaded = parseHelpFromJson(localString::fromUtf8(helpBook));
        goTo(u"#main");
        show();
    }
    QStringList keys() const {
        QStringList list;
        for (const std::u16string& key : history()) {
            list.append(QString::fromStdU16String(key));
        }
        return list;
    }
    bool isOn(const QString& text) const { return toPlainText().contains(text); }
    // The height of the line in which a text stands; 0 when it is not laid out.
    double heightOf(const QString& text) const {
        const QTextCursor found = document()->find(text);
        return found.isNull() ? 0 : found.block().layout()->boundingRect().height();
    }

    bool loaded = false;
};

}  // namespace

class helpBrowser : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        std::setlocale(LC_NUMERIC, "C");
        localMemoryManager::start();
    }

    void withoutABookThereIsNoPage() {
        const localConsoleHelpBrowser browser;
        QCOMPARE(browser.toPlainText(), QStringLiteral("Страница не найдена!"));
        QVERIFY(browser.history().empty());
        QVERIFY(!browser.openLinks());
        QVERIFY(!browser.windowIcon().isNull());
    }

    void picturesLieBesideTheProgramsFiles() {
        QTemporaryDir folder;
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(folder.path()));
        QImage picture(40, 30, QImage::Format_RGB32);
        picture.fill(Qt::darkGreen);
        QVERIFY(picture.save("shown.png"));
        const localConsoleHelpBrowser browser;
        const auto loaded = [&](const QString& name) {
            return browser.document()->resource(QTextDocument::ImageResource, name).value<QImage>();
        };
        QCOMPARE(loaded("shown.png").size(), QSize(40, 30));
        QVERIFY(loaded("missing.png").isNull());
        QVERIFY(QDir::setCurrent(before));
    }

    void pagesAreFollowedByMouse() {
        shownBook browser;
        QVERIFY(browser.loaded);
        QVERIFY(QTest::qWaitForWindowExposed(&browser));
        QVERIFY(browser.isOn("Склад и цены"));
        QVERIFY(saveScreenshot(browser, QStringLiteral("helpMain")));
        QVERIFY(clickLink(browser, "Функции"));
        QVERIFY(browser.isOn("Это класс CONTEXT"));
        QVERIFY(browser.isOn("Доступные методы:"));
        QVERIFY(saveScreenshot(browser, QStringLiteral("helpClass")));
        QVERIFY(clickLink(browser, "FORMAT()"));
        QVERIFY(browser.isOn("Синтаксис:"));
        QVERIFY(saveScreenshot(browser, QStringLiteral("helpMethod")));
        QVERIFY(clickLink(browser, "Главная"));
        QVERIFY(browser.isOn("Склад и цены"));
        QCOMPARE(browser.keys(),
                 QStringList({"#main", "#class:CONTEXT", "#class:CONTEXT:method:FORMAT", "#main"}));
    }

    void methodPageShowsItsNames() {
        shownBook browser;
        browser.goTo(u"#class:CONTEXT:method:FORMAT");
        QVERIFY(QTest::qWaitForWindowExposed(&browser));
        QVERIFY2(browser.isOn("метод FORMAT или ФОРМАТ"), qPrintable(browser.toPlainText()));
        QVERIFY(browser.heightOf("метод FORMAT") > 0);
        const QTextCharFormat name = browser.document()->find("FORMAT или").charFormat();
        QVERIFY(name.fontWeight() < QFont::Bold);  // "или" stands behind the name
        QTextCursor inside(browser.document()->find("метод FORMAT"));
        QVERIFY(inside.charFormat().fontWeight() >= QFont::Bold);
    }

    void keysWithSignsOfUrlsAreFound() {
        shownBook browser;
        browser.goTo(u"#class:CONTEXT:method:FORMAT");
        QVERIFY(QTest::qWaitForWindowExposed(&browser));
        QVERIFY(clickLink(browser, "Проценты"));
        QVERIFY2(browser.isOn("Доля от суммы."), qPrintable(browser.keys().join(' ')));
        QCOMPARE(browser.keys().last(), QStringLiteral("#class:CONTEXT:method:100 %"));
    }

    void missingPageEndsOnTheList() {
        shownBook browser;
        QVERIFY(QTest::qWaitForWindowExposed(&browser));
        QVERIFY(clickLink(browser, "Пропавшая"));
        QVERIFY(browser.isOn("Это полный список страниц."));
        QCOMPARE(browser.keys(), QStringList({"#main", "#404", "#allPages"}));
        QVERIFY(saveScreenshot(browser, QStringLiteral("helpAllPages")));
        QVERIFY(clickLink(browser, "console страница"));
        QVERIFY(browser.isOn("Строка ввода."));
        QCOMPARE(browser.keys().last(), QStringLiteral("#console"));
    }

    void listOfPagesIsAPageOfItsOwn() {
        shownBook browser;
        QVERIFY(QTest::qWaitForWindowExposed(&browser));
        QVERIFY(clickLink(browser, "Все страницы"));
        QVERIFY(browser.isOn("Это полный список страниц."));
        QVERIFY(clickLink(browser, "ФОРМАТ"));
        QVERIFY(browser.isOn("Готовит число для печати"));
    }

    void emptyBookEndsOnTheList() {
        localConsoleHelpBrowser browser;
        QVERIFY(browser.parseHelpFromJson(u"{}"));
        browser.goTo(u"#main");
        QVERIFY(browser.toPlainText().contains("Это полный список страниц."));
        QCOMPARE(browser.history(), (std::vector<std::u16string>{u"#404", u"#allPages"}));
    }

    void missingPageActivatesTheWindow() {
        shownBook browser;
        QWidget other;
        other.show();
        QApplication::setActiveWindow(&other);
        QVERIFY(QTest::qWaitForWindowActive(&other));
        browser.goTo(u"#class:CONTEXT");
        QVERIFY(!browser.isActiveWindow());
        browser.goTo(u"#none");
        QTRY_VERIFY(browser.isActiveWindow());
    }

    void samePageEntersTheHistoryOnce() {
        shownBook browser;
        browser.goTo(u"#main");
        browser.goTo(u"#console");
        browser.goTo(u"#console");
        browser.goTo(u"#main");
        QCOMPARE(browser.keys(), QStringList({"#main", "#console", "#main"}));
    }

    void backspaceGoesBackFromTheFourthPage() {
        shownBook browser;
        browser.goTo(u"#console");
        browser.goTo(u"#class:Склад");
        const QStringList three = browser.keys();
        QTest::keyClick(&browser, Qt::Key_Backspace);
        QCOMPARE(browser.keys(), three);
        QVERIFY(browser.isOn("Остатки товаров."));
        browser.goTo(u"#class:CONTEXT");
        QTest::keyClick(&browser, Qt::Key_Backspace);
        QCOMPARE(browser.keys(), three);
        QVERIFY(browser.isOn("Остатки товаров."));
        QTest::keyClick(&browser, Qt::Key_Backspace);
        QCOMPARE(browser.keys(), three);
    }

    void backspaceFromTheListStandsForAPage() {
        shownBook browser;
        browser.goTo(u"#none");
        browser.goTo(u"#console");
        QCOMPARE(browser.keys(), QStringList({"#main", "#404", "#allPages", "#console"}));
        // The list is no page of the book, so it comes again by way of the missing page.
        QTest::keyClick(&browser, Qt::Key_Backspace);
        QCOMPARE(browser.keys(), QStringList({"#main", "#404", "#allPages"}));
        QVERIFY(browser.isOn("Это полный список страниц."));
        browser.goTo(u"#none");
        QCOMPARE(browser.keys(), QStringList({"#main", "#404", "#allPages", "#404", "#allPages"}));
        QTest::keyClick(&browser, Qt::Key_Backspace);
        QCOMPARE(browser.keys(), QStringList({"#main", "#404", "#allPages", "#404", "#allPages"}));
        QVERIFY(browser.isOn("Это полный список страниц."));
    }

    void pagesAreOnWhitePaperOnADarkDesktop() {
        const QPalette before = QApplication::palette();
        QApplication::setPalette(QPalette(Qt::white, Qt::black));
        shownBook browser;
        QVERIFY(QTest::qWaitForWindowExposed(&browser));
        const QColor corner = browser.viewport()->grab().toImage().pixelColor(0, 0);
        QApplication::setPalette(before);
        QCOMPARE(corner, QColor(Qt::white));
        QCOMPARE(browser.palette().color(QPalette::Text), QColor(Qt::black));
    }

    void otherKeysScroll() {
        shownBook browser;
        browser.resize(400, 120);
        browser.goTo(u"#class:CONTEXT:method:FORMAT");
        QVERIFY(QTest::qWaitForWindowExposed(&browser));
        QCOMPARE(browser.verticalScrollBar()->value(), 0);
        QTest::keyClick(&browser, Qt::Key_PageDown);
        QVERIFY(browser.verticalScrollBar()->value() > 0);
    }

    void brokenTextLeavesThePages() {
        shownBook browser;
        const outputCapture output;
        QVERIFY(!browser.parseHelpFromJson(u"{\"main\": "));
        QVERIFY(!output.text().isEmpty());
        browser.goTo(u"#console");
        QVERIFY(browser.isOn("Строка ввода."));
    }
};

QTEST_MAIN(helpBrowser)
#include "helpBrowser.moc"
