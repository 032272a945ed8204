// What the language asks of the window program: boxes, lists, cursors, outside programs.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
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
    void report_data() {
        QTest::addColumn<localReport::Kind>("kind");
        QTest::addColumn<localReport::Form>("form");
        QTest::addColumn<int>("icon");
        using Kind = localReport::Kind;
        using Form = localReport::Form;
        QTest::newRow("about") << Kind::about << Form::plain << int(QMessageBox::NoIcon);
        QTest::newRow("information")
            << Kind::information << Form::plain << int(QMessageBox::Information);
        QTest::newRow("warning") << Kind::warning << Form::html << int(QMessageBox::Warning);
        QTest::newRow("critical") << Kind::critical << Form::plain << int(QMessageBox::Critical);
        QTest::newRow("question") << Kind::question << Form::html << int(QMessageBox::Question);
    }
    void report() {
        QFETCH(localReport::Kind, kind);
        QFETCH(localReport::Form, form);
        bool seen = false;
        whenModal([&](QWidget* window) {
            auto* const box = qobject_cast<QMessageBox*>(window);
            QCOMPARE(box->windowTitle(), QString("Запись"));
            QCOMPARE(box->text(), QString("Файл <b>не</b> записан"));
            QTEST(int(box->icon()), "icon");
            QCOMPARE(box->iconPixmap().isNull(), false);
            QCOMPARE(box->buttons().size(), qsizetype(1));
            QCOMPARE(box->textFormat(),
                     form == localReport::Form::html ? Qt::RichText : Qt::PlainText);
            QVERIFY(saveScreenshot(*box, QString("report_") + QTest::currentDataTag()));
            seen = true;
            QTest::keyClick(box, Qt::Key_Return);
        });
        const auto pressed = host_.report(
            {.kind = kind, .title = u"Запись", .text = u"Файл <b>не</b> записан", .form = form});
        QVERIFY(pressed == localReport::Button::ok);
        QVERIFY(seen);
    }

    void reportTellsTheButton_data() {
        using Button = localReport::Button;
        QTest::addColumn<std::vector<Button>>("buttons");
        QTest::addColumn<Button>("first");
        QTest::addColumn<int>("key");
        QTest::addColumn<Button>("pressed");
        const std::vector<Button> sure = {Button::ok, Button::cancel};
        const std::vector<Button> close = {Button::yes, Button::no};
        const auto row = [](const char* name, const std::vector<Button>& buttons, Button first,
                            int key, Button pressed) {
            QTest::newRow(name) << buttons << first << key << pressed;
        };
        row("the default", sure, Button::cancel, Qt::Key_Return, Button::cancel);
        row("another default", sure, Button::ok, Qt::Key_Return, Button::ok);
        row("escape", sure, Button::ok, Qt::Key_Escape, Button::cancel);
        row("yes", close, Button::yes, Qt::Key_Return, Button::yes);
        row("no", close, Button::no, Qt::Key_Return, Button::no);
    }
    void reportTellsTheButton() {
        QFETCH(std::vector<localReport::Button>, buttons);
        QFETCH(localReport::Button, first);
        QFETCH(int, key);
        QFETCH(localReport::Button, pressed);
        whenModal([&](QWidget* window) {
            QCOMPARE(qobject_cast<QMessageBox*>(window)->buttons().size(), qsizetype(2));
            QTest::keyClick(window->focusWidget(), static_cast<Qt::Key>(key));
        });
        const auto answer = host_.report({.kind = localReport::Kind::question,
                                          .title = u"question",
                                          .text = u"Are you sure? ",
                                          .buttons = buttons,
                                          .defaultButton = first});
        QVERIFY(answer == pressed);
    }

    void reportShowsTheArrow() {
        host_.setCursor(localHost::Cursor::wait);
        auto shape = Qt::WaitCursor;
        whenModal([&](QWidget* window) {
            shape = QApplication::overrideCursor()->shape();
            QTest::keyClick(window, Qt::Key_Return);
        });
        host_.report({.text = u"text"});
        QCOMPARE(shape, Qt::ArrowCursor);
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        host_.setCursor(localHost::Cursor::restored);
    }

    void longMessagesAreCutReportsAreNot() {
        const std::u16string longText(511, u'x');
        QString shown, details;
        const auto look = [&](QWidget* window) {
            auto* const box = qobject_cast<QMessageBox*>(window);
            shown = box->text();
            details = box->detailedText();
            QTest::keyClick(box, Qt::Key_Return);
        };
        whenModal(look);
        QVERIFY(host_.showMessage({.text = longText}));
        QCOMPARE(shown, QString(507, 'x') + "...");
        QCOMPARE(details, QString(511, 'x'));
        whenModal(look);
        host_.report({.text = longText});
        QCOMPARE(shown, QString(511, 'x'));
        QCOMPARE(details, QString());
    }

    void chooseFile_data() {
        QTest::addColumn<bool>("chosen");
        QTest::newRow("chosen") << true;
        QTest::newRow("rejected") << false;
    }
    void chooseFile() {
        QFETCH(bool, chosen);
        QVERIFY(QDir().mkpath("data"));
        QFile file("data/goods.sqlite");
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        QString title, folder;
        QStringList filters;
        whenModal([&](QWidget* window) {
            auto* const dialog = qobject_cast<QFileDialog*>(window);
            title = dialog->windowTitle();
            folder = dialog->directory().dirName();
            filters = dialog->nameFilters();
            auto* const name = dialog->findChild<QLineEdit*>();
            name->setText("goods.sqlite");
            QTest::keyClick(name, chosen ? Qt::Key_Return : Qt::Key_Escape);
        });
        const std::u16string name = host_.chooseFile(u"Open file database ", u"data",
                                                     {u"*.sqlite *.sqlite", u"Тексты (*.txt)"});
        QCOMPARE(QString::fromStdU16String(name),
                 chosen ? QDir::current().filePath("data/goods.sqlite") : QString());
        QCOMPARE(title, QString("Open file database "));
        QCOMPARE(folder, QString("data"));
        QCOMPARE(filters, QStringList({"*.sqlite *.sqlite", "Тексты (*.txt)"}));
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
            host_.report({.title = u"title", .text = u"text"});
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
