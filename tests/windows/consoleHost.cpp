// What the language asks of the window program: boxes, lists, cursors, outside programs.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QListWidget>
#include <QMessageBox>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <functional>

#include "localVCL/host/localVclHost.h"
#include "screenshot.h"

class consoleHost : public QObject {
    Q_OBJECT

private:
    localVclHost host_;

    // Acts on the next modal window as soon as it stands there.
    static void whenModal(const std::function<void(QWidget*)>& act) {
        auto* const timer = new QTimer(qApp);
        QObject::connect(timer, &QTimer::timeout, timer, [timer, act] {
            if (QWidget* const window = QApplication::activeModalWidget()) {
                timer->deleteLater();
                timer->stop();
                act(window);
            }
        });
        timer->start(10);
    }

    static QString waitForFile(const QString& name) {
        QFile file(name);
        for (int i = 0; i < 500 && (!file.exists() || file.size() == 0); ++i) {
            QTest::qWait(20);
        }
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

private slots:
    void messageBox_data() {
        QTest::addColumn<bool>("critical");
        QTest::newRow("information") << false;
        QTest::newRow("critical") << true;
    }
    void messageBox() {
        QFETCH(bool, critical);
        QString title, text;
        auto icon = QMessageBox::NoIcon;
        qsizetype buttons = 0;
        whenModal([&](QWidget* window) {
            auto* const box = qobject_cast<QMessageBox*>(window);
            title = box->windowTitle();
            text = box->text();
            icon = box->icon();
            buttons = box->buttons().size();
            QVERIFY(box->textFormat() == Qt::PlainText);
            QVERIFY(saveScreenshot(*box, critical ? "messageCritical" : "messageInformation"));
            QTest::keyClick(box, Qt::Key_Return);
        });
        host_.messageBox(critical ? localHost::MessageKind::critical
                                  : localHost::MessageKind::information,
                         u"Запись", u"Файл <b>не</b> записан");
        QCOMPARE(title, QString("Запись"));
        QCOMPARE(text, QString("Файл <b>не</b> записан"));
        QCOMPARE(icon, critical ? QMessageBox::Critical : QMessageBox::Information);
        QCOMPARE(buttons, qsizetype(1));
    }

    void haltBox() {
        QString title, text;
        whenModal([&](QWidget* window) {
            title = window->windowTitle();
            text = qobject_cast<QMessageBox*>(window)->text();
            QTest::keyClick(window, Qt::Key_Escape);
        });
        host_.haltBox(u"Halt!!! Runtime error.", u"no slots");
        QCOMPARE(title, QString("Halt!!! Runtime error."));
        QCOMPARE(text, QString("no slots"));
    }

    void boxOfAnotherThreadIsShownHere() {
        bool answered = false;
        const std::unique_ptr<QThread> program(QThread::create([&] {
            host_.messageBox(localHost::MessageKind::information, u"title", u"text");
            answered = true;
        }));
        QThread* shownOn = nullptr;
        whenModal([&](QWidget* window) {
            shownOn = QThread::currentThread();
            QTest::keyClick(window, Qt::Key_Return);
        });
        program->start();
        QTRY_VERIFY(program->isFinished());
        QVERIFY(answered);
        QCOMPARE(shownOn, qApp->thread());
    }

    void cursorsAreLaidOverEachOther() {
        host_.setCursor(localHost::Cursor::wait);
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        host_.setCursor(localHost::Cursor::arrow);
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
        host_.setCursor(localHost::Cursor::restored);
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        host_.setCursor(localHost::Cursor::restored);
        QVERIFY(QApplication::overrideCursor() == nullptr);
    }

    void chooseRow_data() {
        QTest::addColumn<int>("start");
        QTest::addColumn<QList<int>>("keys");
        QTest::addColumn<int>("chosen");
        QTest::newRow("the row given") << 2 << QList<int>{Qt::Key_Return} << 2;
        QTest::newRow("next") << 2 << QList<int>{Qt::Key_Down, Qt::Key_Return} << 3;
        QTest::newRow("last stays") << 3 << QList<int>{Qt::Key_Down, Qt::Key_Return} << 3;
        QTest::newRow("first of none") << 0 << QList<int>{Qt::Key_Return} << 1;
        QTest::newRow("rejected") << 2 << QList<int>{Qt::Key_Escape} << 0;
    }
    void chooseRow() {
        QFETCH(int, start);
        QFETCH(QList<int>, keys);
        QFETCH(int, chosen);
        QString title;
        QStringList lines;
        whenModal([&](QWidget* window) {
            title = window->windowTitle();
            auto* const list = window->findChild<QListWidget*>();
            for (int i = 0; i < list->count(); ++i) {
                lines.append(list->item(i)->text());
            }
            for (const int key : keys) {
                QTest::keyClick(window->focusWidget(), static_cast<Qt::Key>(key));
            }
        });
        const auto row =
            host_.chooseRow(u"Выбор", {u"один", u"два", u"три"}, static_cast<std::size_t>(start));
        QVERIFY(row.has_value());
        QCOMPARE(int(*row), chosen);
        QCOMPARE(title, QString("Выбор"));
        QCOMPARE(lines, QStringList({"один", "два", "три"}));
    }

    void emptyListGivesNoRow() {
        whenModal([](QWidget* window) { QTest::keyClick(window->focusWidget(), Qt::Key_Return); });
        QCOMPARE(host_.chooseRow(u"Выбор", {}, 0), std::optional<std::size_t>(0));
    }

    void listIsShown() {
        bool shown = false;
        whenModal([&](QWidget* window) {
            shown = true;
            QTest::keyClick(window, Qt::Key_Escape);
        });
        QVERIFY(host_.showList(u"Список", {u"один"}));
        QVERIFY(shown);
    }

    void startsAProgramWithoutWaiting() {
        QFile::remove("started.txt");
        QVERIFY(host_.startProgram(u"sleep 0.3; echo started > started.txt"));
        QVERIFY(!QFile::exists("started.txt"));
        QCOMPARE(waitForFile("started.txt"), QString("started\n"));
    }

    void opensTheEditorThatThePersonNamed() {
        QFile script("editor.sh");
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\necho \"$1\" > opened.txt\n");
        script.close();
        script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        QFile::remove("opened.txt");
        qputenv("VISUAL", QDir::current().filePath("editor.sh").toUtf8());
        QVERIFY(host_.openOutsideEditor(u"моя папка\\file.prg"));
        QCOMPARE(waitForFile("opened.txt"), QString("моя папка/file.prg\n"));
        qunsetenv("VISUAL");
    }

    void opensTheEditorOfTheDesktopElse() {
        QDir().mkpath("tools");
        QFile script("tools/xdg-open");
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\necho \"$1\" > opened-by-desktop.txt\n");
        script.close();
        script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", QDir::current().filePath("tools").toUtf8() + ":" + path);
        qunsetenv("VISUAL");
        QFile::remove("opened-by-desktop.txt");
        QVERIFY(host_.openOutsideEditor(u"file.prg"));
        QCOMPARE(waitForFile("opened-by-desktop.txt"), QString("file.prg\n"));
        qputenv("PATH", path);
    }
};

QTEST_MAIN(consoleHost)
#include "consoleHost.moc"
