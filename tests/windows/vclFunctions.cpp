// Functions of the language that show something or ask a person, called by programs.
#include <QApplication>
#include <QBuffer>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QTest>
#include <QThread>

#include <memory>

#include "localInterpretatorUTF8/context/localContextUTF8.h"
#include "localInterpretatorUTF8/host/localHost.h"
#include "localInterpretatorUTF8/program/localCommand.h"
#include "localInterpretatorUTF8/status/localStatus.h"
#include "localInterpretatorUTF8/thread/localTurn.h"
#include "localVCL/dialog/localCalendar.h"
#include "localVCL/host/localVclHost.h"
#include "localVCL/picture/localVclPicture.h"
#include "localVCL/window/localMainWindow.h"
#include "madeOf.h"
#include "screenshot.h"
#include "windowTest.h"

namespace {

// Acts on a typed line; gives the status.
int act(const QString& line) {
    static localContextUTF8 context;
    int status = localErrorTypeOK;
    std::uint32_t pos = 0;
    localInterpretatorUTF8::scanStringGetOperatorAndExec(status, line.toStdU16String(), pos,
                                                         &context, false);
    return status;
}

// The lines that a typed line writes.
QString linesOf(const QString& line) {
    const outputCapture output;
    act(line);
    return output.text().trimmed();
}

QWidget* windowTitled(const QString& title) {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (qobject_cast<localMainWindow*>(window) != nullptr && window->windowTitle() == title) {
            return window;
        }
    }
    return nullptr;
}

}  // namespace

class vclFunctions : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        localHost::install(&host_);
        addWhatKorvoIsMadeOf();
    }
    void cleanupTestCase() { localHost::install(nullptr); }

    void stringShowOpensATextWindow() {
        const QString sentence = QStringLiteral("Съешь ещё этих мягких булок, 0123 {}[]");
        QCOMPARE(linesOf(QStringLiteral("? STRINGSHOW(\"%1\")").arg(sentence)),
                 QStringLiteral("1"));
        QWidget* const window = windowTitled(QStringLiteral("TE"));
        QVERIFY(window != nullptr);
        QVERIFY(QTest::qWaitForWindowExposed(window));
        auto* const text = window->findChild<QPlainTextEdit*>();
        QCOMPARE(text->toPlainText(), sentence);
        QVERIFY(text->isReadOnly());
        QVERIFY(saveScreenshot(*window, QStringLiteral("vclStringShow")));
        QVERIFY(QTest::qWaitForWindowActive(window));
        QTest::keyClick(text, Qt::Key_Escape);
        QTRY_VERIFY(windowTitled(QStringLiteral("TE")) == nullptr);
    }

    void stringShowTakesAnyValue() {
        QCOMPARE(linesOf(QStringLiteral("? СТРОКАПОКАЗАТЬ(2.5)")), QStringLiteral("1"));
        QWidget* const window = windowTitled(QStringLiteral("TE"));
        QCOMPARE(window->findChild<QPlainTextEdit*>()->toPlainText(), QStringLiteral("2.5"));
        window->close();
        QTRY_VERIFY(windowTitled(QStringLiteral("TE")) == nullptr);
    }

    void messageBoxHasKinds_data() {
        QTest::addColumn<QString>("call");
        QTest::addColumn<int>("icon");
        const auto row = [](const char* call, QMessageBox::Icon icon) {
            QTest::newRow(call) << QString::fromUtf8(call) << int(icon);
        };
        row("MESSAGEBOX(\"Текст\")", QMessageBox::Information);
        row("MESSAGEBOX(\"Текст\",0)", QMessageBox::Information);
        row("MESSAGEBOX(\"Текст\",1)", QMessageBox::Warning);
        row("MESSAGEBOX(\"Текст\",2)", QMessageBox::Critical);
        row("ПРЕДУПРЕЖДЕНИЕ(\"Текст\",3)", QMessageBox::Question);
        row("MESSAGEBOX(\"Текст\",4)", QMessageBox::Information);
        row("MESSAGEBOX(\"Текст\",0-1)", QMessageBox::Information);
    }
    void messageBoxHasKinds() {
        QFETCH(QString, call);
        QFETCH(int, icon);
        QString lines;
        {
            const dialogAnswer answer([&](QWidget* dialog) {
                auto* const box = qobject_cast<QMessageBox*>(dialog);
                QVERIFY(box != nullptr);
                QCOMPARE(int(box->icon()), icon);
                QCOMPARE(box->text(), QStringLiteral("Текст"));
                QCOMPARE(box->windowTitle(), QStringLiteral("Сообщение"));
                QVERIFY(saveScreenshot(*box, QStringLiteral("vclMessageBox%1").arg(icon)));
                QTest::keyClick(box, Qt::Key_Return);
            });
            lines = linesOf(QStringLiteral("? ") + call);
            QVERIFY(answer.given());
        }
        QCOMPARE(lines, QStringLiteral("1"));
    }

    void argumentsAreChecked_data() {
        QTest::addColumn<QString>("call");
        QTest::addColumn<int>("status");
        const auto row = [](const char* call, int status) {
            QTest::newRow(call) << QString::fromUtf8(call) << status;
        };
        row("STRINGSHOW()", 31);
        row("STRINGSHOW(1,2)", 31);
        row("MESSAGEBOX()", 31);
        row("MESSAGEBOX(\"a\",1,1)", 31);
        row("MESSAGEBOX(1)", 33);
        row("MESSAGEBOX(\"a\",\"b\")", 33);
        row("DATECHOOSEASSTRING(\"a\",\"b\")", 31);
        row("DATECHOOSEASSTRING(1)", 33);
        row("PIXMAPASBASE64SHOW()", 31);
        row("PIXMAPASBASE64SHOW(1)", 33);
        row("COLOR()", 31);
        row("COLOR(1)", 33);
    }
    void argumentsAreChecked() {
        QFETCH(QString, call);
        const outputCapture output;
        QTEST(act(QStringLiteral("? ") + call), "status");
    }

    void dateIsChosen() {
        QString lines;
        {
            const dialogAnswer answer([](QWidget* dialog) {
                auto* const calendar = qobject_cast<localCalendar*>(dialog);
                QVERIFY(calendar != nullptr);
                QCOMPARE(calendar->selectedDate(), QStringLiteral("20261115"));
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            });
            lines = linesOf(QStringLiteral("? \"[\"+DATECHOOSEASSTRING(\"20261115\")+\"]\""));
        }
        QVERIFY2(lines.endsWith(QStringLiteral("[20261114]")), qPrintable(lines));
    }

    void rejectedDateIsEmpty() {
        const dialogAnswer answer(
            [](QWidget*) { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); });
        QCOMPARE(linesOf(QStringLiteral("? \"[\"+ДАТАВЫБРАТЬКАКСТРОКА()+\"]\"")),
                 QStringLiteral("[]"));
    }

    void pictureIsShown_data() {
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<QSize>("window");
        QTest::newRow("small") << QSize(12, 8) << QSize(240, 160);
        QTest::newRow("large") << QSize(400, 300) << QSize(400, 300);
    }
    void pictureIsShown() {
        QFETCH(QSize, picture);
        QPixmap pixmap(picture);
        pixmap.fill(Qt::darkGreen);
        QCOMPARE(
            linesOf(
                QStringLiteral("? PIXMAPASBASE64SHOW(\"%1\")").arg(localVclPixmapToBase64(pixmap))),
            QStringLiteral("1"));
        QWidget* const window = windowTitled({});
        QVERIFY(window != nullptr);
        QVERIFY(QTest::qWaitForWindowExposed(window));
        auto* const shown = window->findChild<QScrollArea*>();
        QTEST(shown->size(), "window");
        const QImage drawn = shown->grab().toImage();
        const QPoint middle = drawn.rect().center();
        QCOMPARE(drawn.pixelColor(middle), QColor(Qt::darkGreen));
        const QPoint outside = middle + QPoint(picture.width() / 2 + 2, 0);
        QCOMPARE(drawn.rect().contains(outside), picture.width() < 240);
        if (drawn.rect().contains(outside)) {
            QVERIFY(drawn.pixelColor(outside) != QColor(Qt::darkGreen));
        }
        QVERIFY(QTest::qWaitForWindowActive(window));
        QTest::keyClick(shown, Qt::Key_Escape);
        QTRY_VERIFY(windowTitled({}) == nullptr);
    }

    void whatIsNoPictureSaysSo() {
        QCOMPARE(linesOf(QStringLiteral("? PIXMAPASBASE64SHOW(\"???\")")), QStringLiteral("1"));
        QWidget* const window = windowTitled({});
        QCOMPARE(window->findChild<QLabel*>()->text(), QStringLiteral("Это не картинка!"));
        QVERIFY(saveScreenshot(*window, QStringLiteral("vclNoPicture")));
        window->close();
        QTRY_VERIFY(windowTitled({}) == nullptr);
    }

    // A page of 600 dots an inch.
    void pictureOfMoreThan128MegabytesIsRead() {
        QImage page(4961, 7016, QImage::Format_RGB32);
        page.fill(Qt::white);
        QByteArray png;
        QBuffer buffer(&png);
        QVERIFY(buffer.open(QIODevice::WriteOnly) && page.save(&buffer, "PNG"));
        const QSize size = page.size();
        page = {};
        QCOMPARE(localVclPixmapFromBase64(QString::fromLatin1(png.toBase64())).size(), size);
    }

    void picturesAreCutByTheLinkedConverter() {
        QPixmap pixmap(10, 10);
        pixmap.fill(Qt::red);
        const QString text = linesOf(QStringLiteral("? PIXMAPASBASE64PARTGET(\"%1\",4,6)")
                                         .arg(localVclPixmapToBase64(pixmap)));
        QCOMPARE(localVclPixmapFromBase64(text).size(), QSize(6, 4));
    }

    void aListOfTheLanguageIsShown() {
        act(QStringLiteral("list=CREATEOBJECT(\"VALUELIST\")"));
        act(QStringLiteral("list.VALUEADD(1,\"Первый\")"));
        act(QStringLiteral("list.VALUEADD(2,\"Второй\")"));
        const dialogAnswer answer([](QWidget* dialog) {
            QVERIFY(saveScreenshot(*dialog, QStringLiteral("vclRowChoose")));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        });
        const QString lines = linesOf(QStringLiteral("? list.ROWCHOOSE(\"Ряд\",2)"));
        QVERIFY2(lines.endsWith(QStringLiteral("2")), qPrintable(lines));
    }

    void aProgramOnAnotherThreadAsksThroughTheWindowsThread() {
        QThread* shownOn = nullptr;
        int status = 0;
        const outputCapture output;
        const dialogAnswer answer([&](QWidget* dialog) {
            shownOn = QThread::currentThread();
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        const localTurn::Pause pause;
        const std::unique_ptr<QThread> program(QThread::create([&] {
            const localTurn::Hold turn;
            status = act(QStringLiteral("MESSAGEBOX(\"x\")"));
        }));
        program->start();
        QTRY_VERIFY(program->isFinished());
        QVERIFY(answer.given());
        QCOMPARE(shownOn, qApp->thread());
        QCOMPARE(status, int(localErrorTypeOK));
    }

private:
    localVclHost host_;
};

QTEST_MAIN(vclFunctions)
#include "vclFunctions.moc"
