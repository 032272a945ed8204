// The small dialogs: list, calendar, message window.
#include <QApplication>
#include <QCalendarWidget>
#include <QElapsedTimer>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

#include "localVCL/dialog/localCalendar.h"
#include "localVCL/dialog/localVclListDialog.h"
#include "localVCL/dialog/localVclMessage.h"
#include "screenshot.h"
#include "windowTest.h"

namespace {

const QStringList lines{QStringLiteral("Сумма(количество, цена)"), QStringLiteral("total"),
                        QStringLiteral("Ёлка № 3"), QStringLiteral("{\"key\":[1,2]}")};

QPushButton* buttonNamed(QWidget* window, const QString& text) {
    for (QPushButton* const button : window->findChildren<QPushButton*>()) {
        if (button->text() == text) {
            return button;
        }
    }
    return nullptr;
}

QMessageBox* messageBoxOf(QWidget* dialog) {
    return qobject_cast<QMessageBox*>(dialog);
}

// What the list dialog leaves after a person did something in it.
struct listOutcome {
    bool accepted = false;
    int row = -1;
    QString output;
};

listOutcome chooseFrom(const QStringList& offered, int row,
                       const std::function<void(QWidget*, QListWidget*)>& person) {
    listOutcome outcome;
    outcome.row = row;
    const outputCapture output;
    const dialogAnswer answer(
        [&](QWidget* dialog) { person(dialog, dialog->findChild<QListWidget*>()); });
    outcome.accepted =
        localVclQStringListGetItem(QStringLiteral("Выберите:"), offered, outcome.row);
    outcome.output = output.text();
    return outcome;
}

}  // namespace

class vclDialogs : public QObject {
    Q_OBJECT

private slots:
    void listBeginsAtTheGivenRow() {
        const listOutcome outcome = chooseFrom(lines, 2, [](QWidget* dialog, QListWidget* list) {
            QCOMPARE(dialog->windowTitle(), QStringLiteral("Выберите:"));
            QVERIFY(dialog->isModal());
            QCOMPARE(list->count(), 4);
            QCOMPARE(list->currentRow(), 2);
            QCOMPARE(dialog->focusWidget(), list);
            const QSize room = dialog->screen()->availableSize();
            QCOMPARE(dialog->size(), QSize(room.width() / 2, room.height() * 3 / 10));
            QVERIFY(saveScreenshot(*dialog, QStringLiteral("vclListDialog")));
            QTest::keyClick(list, Qt::Key_Return);
        });
        QVERIFY(outcome.accepted);
        QCOMPARE(outcome.row, 2);
        QVERIFY2(outcome.output.startsWith(QStringLiteral("Accepted func: ")),
                 qPrintable(outcome.output));
        QCOMPARE(outcome.output.count(u'\n'), 1);
    }

    void listWithoutAGivenRowBeginsAtTheFirst_data() {
        QTest::addColumn<int>("row");
        QTest::newRow("none") << -1;
        QTest::newRow("behind the last") << 4;
    }
    void listWithoutAGivenRowBeginsAtTheFirst() {
        QFETCH(int, row);
        const listOutcome outcome = chooseFrom(lines, row, [](QWidget*, QListWidget* list) {
            QCOMPARE(list->currentRow(), 0);
            QTest::keyClick(list, Qt::Key_Down);
            QTest::keyClick(list, Qt::Key_Enter);
        });
        QVERIFY(outcome.accepted);
        QCOMPARE(outcome.row, 1);
    }

    void listRejectedLeavesTheRow() {
        const listOutcome outcome = chooseFrom(lines, 3, [](QWidget*, QListWidget* list) {
            QTest::keyClick(list, Qt::Key_Home);
            QTest::keyClick(list, Qt::Key_Escape);
        });
        QVERIFY(!outcome.accepted);
        QCOMPARE(outcome.row, 3);
        QVERIFY2(outcome.output.startsWith(QStringLiteral("Rejected func: ")),
                 qPrintable(outcome.output));
    }

    void listTakesTheRowOfADoubleClick() {
        const listOutcome outcome = chooseFrom(lines, 0, [](QWidget*, QListWidget* list) {
            const QPoint place = list->visualItemRect(list->item(1)).center();
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
            QVERIFY(list->isVisible());
            QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
        });
        QVERIFY(outcome.accepted);
        QCOMPARE(outcome.row, 1);
    }

    void listHasButtonsForTheMouse() {
        const listOutcome ok = chooseFrom(lines, 1, [](QWidget* dialog, QListWidget*) {
            QTest::mouseClick(buttonNamed(dialog, QStringLiteral("OK")), Qt::LeftButton);
        });
        QVERIFY(ok.accepted);
        QCOMPARE(ok.row, 1);
        const listOutcome cancel = chooseFrom(lines, 1, [](QWidget* dialog, QListWidget*) {
            QTest::mouseClick(buttonNamed(dialog, QStringLiteral("Cancel")), Qt::LeftButton);
        });
        QVERIFY(!cancel.accepted);
    }

    void emptyListGivesNoRow() {
        const listOutcome outcome = chooseFrom(
            {}, 0, [](QWidget*, QListWidget* list) { QTest::keyClick(list, Qt::Key_Return); });
        QVERIFY(outcome.accepted);
        QCOMPARE(outcome.row, -1);
    }

    void listAppliesOnce() {
        int row = 1;
        localVclQStringListGetItemDialog dialog(QStringLiteral("t"), lines, row);
        QSignalSpy applied(&dialog, &localVclQStringListGetItemDialog::applied);
        dialog.show();
        auto* const list = dialog.findChild<QListWidget*>();
        QTest::keyClick(list, Qt::Key_End);
        QCOMPARE(row, 1);
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(applied.count(), 1);
        QCOMPARE(row, 3);
        QVERIFY(!dialog.isVisible());
    }

    void listWithAnUnknownResultIsUnexpected() {
        const listOutcome outcome = chooseFrom(lines, 2, [](QWidget* dialog, QListWidget*) {
            qobject_cast<QDialog*>(dialog)->done(7);
        });
        QVERIFY(!outcome.accepted);
        QCOMPARE(outcome.row, 2);
        QVERIFY2(outcome.output.startsWith(QStringLiteral("Unexpected func: ")),
                 qPrintable(outcome.output));
    }

    void listIsNotStyledByALineOfMarkup() {
        chooseFrom({QStringLiteral("<b>a</b>")}, 0, [](QWidget*, QListWidget* list) {
            QCOMPARE(list->item(0)->text(), QStringLiteral("<b>a</b>"));
            QTest::keyClick(list, Qt::Key_Escape);
        });
    }

    void calendarGivesTheDateOfEnter() {
        const outputCapture output;
        localCalendar calendar(QDate(2026, 2, 27));
        QCOMPARE(calendar.selectedDate(), QStringLiteral("20260227"));
        bool accepted = false;
        {
            const dialogAnswer answer([](QWidget* dialog) {
                QVERIFY(saveScreenshot(*dialog, QStringLiteral("vclCalendar")));
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            });
            accepted = calendar.exec() == QDialog::Accepted;
        }
        QVERIFY(accepted);
        QCOMPARE(calendar.selectedDate(), QStringLiteral("20260301"));
        QVERIFY2(output.text().startsWith(QStringLiteral("20260301 func: dateSelected")),
                 qPrintable(output.text()));
        QCOMPARE(output.text().count(u'\n'), 1);
    }

    void calendarIsRejectedByEscape() {
        localCalendar calendar(QDate(2026, 2, 27));
        const dialogAnswer answer(
            [](QWidget*) { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); });
        QCOMPARE(calendar.exec(), int(QDialog::Rejected));
    }

    void calendarIsAcceptedByItsButton() {
        const outputCapture output;
        localCalendar calendar(QDate(2026, 12, 31));
        const dialogAnswer answer([](QWidget* dialog) {
            QTest::mouseClick(buttonNamed(dialog, QStringLiteral("OK")), Qt::LeftButton);
        });
        QCOMPARE(calendar.exec(), int(QDialog::Accepted));
        QCOMPARE(calendar.selectedDate(), QStringLiteral("20261231"));
    }

    void calendarWithoutADateBeginsToday() {
        const QDate before = QDate::currentDate();
        const QString shown = localCalendar(QDate()).selectedDate();
        QVERIFY(shown == before.toString(QStringLiteral("yyyyMMdd")) ||
                shown == QDate::currentDate().toString(QStringLiteral("yyyyMMdd")));
    }

    void dateTextsAreExact() {
        QCOMPARE(localCalendar::dateOf(QStringLiteral("20240229")), QDate(2024, 2, 29));
        for (const char* const text : {"", "20230229", "2024-02-29", "29.02.2024", "abc"}) {
            QVERIFY2(!localCalendar::dateOf(QString::fromLatin1(text)).isValid(), text);
        }
    }

    void messageOf510IsWholeAndOf511IsCut_data() {
        QTest::addColumn<int>("length");
        QTest::addColumn<bool>("cut");
        QTest::newRow("empty") << 0 << false;
        QTest::newRow("510") << 510 << false;
        QTest::newRow("511") << 511 << true;
        QTest::newRow("5000") << 5000 << true;
    }
    void messageOf510IsWholeAndOf511IsCut() {
        QFETCH(int, length);
        QFETCH(bool, cut);
        const QString text = QStringLiteral("Привет, мир! ").repeated(length / 13 + 1).left(length);
        const dialogAnswer answer([&](QWidget* dialog) {
            QMessageBox* const box = messageBoxOf(dialog);
            QVERIFY(box != nullptr);
            QCOMPARE(box->text(), cut ? text.left(507) + QStringLiteral("...") : text);
            QCOMPARE(box->detailedText(), cut ? text : QString());
            QVERIFY(box->isSizeGripEnabled());
            QCOMPARE(box->icon(), QMessageBox::Information);
            QCOMPARE(box->windowTitle(), QStringLiteral("Сообщение"));
            QVERIFY(saveScreenshot(*dialog, QStringLiteral("vclMessage%1").arg(length)));
            QTest::keyClick(box, Qt::Key_Return);
        });
        localVclMessageShow(text, QStringLiteral("Сообщение"));
        QVERIFY(answer.given());
    }

    void messageWithoutATitleNamesTheApplication() {
        QApplication::setApplicationName(QStringLiteral("korvo"));
        const dialogAnswer answer([](QWidget* dialog) {
            QCOMPARE(dialog->windowTitle(), QStringLiteral("korvo"));
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        localVclMessageShow(QStringLiteral("<b>plain</b>"), {});
        QVERIFY(answer.given());
    }

    void messageClosesByItselfAfterItsSeconds() {
        QElapsedTimer clock;
        clock.start();
        localVclMessageShow(QStringLiteral("wait"), {}, 1);
        QVERIFY2(clock.elapsed() >= 990, qPrintable(QString::number(clock.elapsed())));
    }

    void messageShowsTheArrowOverTheWaitCursor() {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        const dialogAnswer answer([](QWidget* dialog) {
            QCOMPARE(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        localVclMessageShow(QStringLiteral("text"), {});
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        QApplication::restoreOverrideCursor();
        QVERIFY(QApplication::overrideCursor() == nullptr);
    }
};

QTEST_MAIN(vclDialogs)
#include "vclDialogs.moc"
