// The dialog that changes the values of a value list.
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <clocale>
#include <memory>

#include "localInterpretatorUTF8/container/localValueList.h"
#include "localInterpretatorUTF8/value/localMemoryManager.h"
#include "localVCL/dialog/localVclListOfValuesChange.h"
#include "screenshot.h"
#include "windowTest.h"

namespace {

// A value that holds a new list: a name, a price, a box to tick, a list inside.
std::unique_ptr<localValueDescription> goods() {
    auto holder = std::make_unique<localValueDescription>();
    auto* const list = new localValueList;
    holder->objectBind(list, localValueList::classDeclaration());
    list->valueAppend(localText(u"Гвозди <100 мм>"), u"Товар");
    list->valueAppend(0.1, u"Цена & скидка");
    list->itemAppend(u"В наличии").setBoolean(true);
    list->valueAppend(new localValueList, u"Поставщики");
    return holder;
}

// A dialog on a list, with its fields at hand.
struct shownDialog {
    explicit shownDialog(const localValueDescription& value)
        : list(localValueList::of(value)), dialog(QStringLiteral("Изменение"), value) {
        dialog.show();
        lines = dialog.findChildren<QLineEdit*>();
    }
    void press(const QString& text) {
        for (QPushButton* const button : dialog.findChildren<QPushButton*>()) {
            if (button->text() == text) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        QFAIL(qPrintable("no button " + text));
    }
    void retype(int line, const QString& text) {
        lines[line]->setFocus();
        lines[line]->selectAll();
        // keyClicks() knows Latin letters only.
        for (const QChar letter : text) {
            QTest::sendKeyEvent(QTest::Click, lines[line], Qt::Key_unknown, letter, {});
        }
    }
    QString textAt(std::size_t position) const {
        return QString::fromStdU16String(list->valueAt(position).toString().string());
    }

    localValueList* list;
    DemoDialogForListOfValuesChange dialog;
    QList<QLineEdit*> lines;
    outputCapture output;
};

}  // namespace

class listChange : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        std::setlocale(LC_NUMERIC, "C");
        localMemoryManager::start();
    }

    void hasARowForEachItem() {
        const auto value = goods();
        shownDialog shown(*value);
        QStringList captions;
        for (QLabel* const label : shown.dialog.findChildren<QLabel*>()) {
            captions.append(label->text());
        }
        QCOMPARE(captions, QStringList({"<B>Товар</B>", "<B>Цена &amp; скидка</B>",
                                        "<B>В наличии</B>", "<B>Поставщики</B>"}));
        QCOMPARE(shown.lines.size(), 3);
        QCOMPARE(shown.lines[0]->text(), QStringLiteral("Гвозди <100 мм>"));
        QCOMPARE(shown.lines[1]->text(), QStringLiteral("0.1"));
        QVERIFY(shown.lines[2]->text().startsWith("Список значений [0]"));
        QVERIFY(shown.lines[2]->isReadOnly());
        QVERIFY(shown.dialog.findChild<QCheckBox*>()->isChecked());
        QVERIFY(QTest::qWaitForWindowActive(&shown.dialog));
        QVERIFY(shown.lines[0]->hasFocus());
        QVERIFY(saveScreenshot(shown.dialog, QStringLiteral("listChange")));
    }

    void applyWritesAndStays() {
        const auto value = goods();
        shownDialog shown(*value);
        QSignalSpy applied(&shown.dialog, &DemoDialogForListOfValuesChange::applied);
        QSignalSpy applied1(&shown.dialog, &DemoDialogForListOfValuesChange::applied1);
        shown.retype(0, "Болты");
        shown.retype(1, "12.75");
        QTest::mouseClick(shown.dialog.findChild<QCheckBox*>(), Qt::LeftButton, {}, QPoint(8, 8));
        QCOMPARE(shown.textAt(1), QStringLiteral("Гвозди <100 мм>"));
        shown.press("Apply");
        QVERIFY(shown.dialog.isVisible());
        QCOMPARE(shown.textAt(1), QStringLiteral("Болты"));
        QCOMPARE(int(shown.list->valueAt(1).type), int(localValueTypeSTRING));
        QCOMPARE(shown.list->valueAt(2).num, 12.75);
        QCOMPARE(int(shown.list->valueAt(2).type), int(localValueTypeNUMBER));
        QCOMPARE(shown.textAt(3), QStringLiteral("ЛОЖЬ"));
        QCOMPARE(applied.count(), 1);
        QCOMPARE(applied1.count(), 1);
        QCOMPARE(applied1[0][0].value<DemoDialogForListOfValuesChange*>(), &shown.dialog);
        QVERIFY2(shown.output.text().contains(QStringLiteral(" func: ") +
                                              DemoDialogForListOfValuesChange::NUME + " "),
                 qPrintable(shown.output.text()));
    }

    void okWritesAndAccepts() {
        const auto value = goods();
        shownDialog shown(*value);
        QSignalSpy applied(&shown.dialog, &DemoDialogForListOfValuesChange::applied);
        QSignalSpy accepted(&shown.dialog, &QDialog::accepted);
        shown.retype(1, "-3");
        shown.press("OK");
        QVERIFY(!shown.dialog.isVisible());
        QCOMPARE(accepted.count(), 1);
        QCOMPARE(applied.count(), 1);
        QCOMPARE(shown.list->valueAt(2).num, -3.0);
    }

    void enterInAFieldIsOk() {
        const auto value = goods();
        shownDialog shown(*value);
        shown.retype(0, "Шурупы");
        QTest::keyClick(shown.lines[0], Qt::Key_Return);
        QVERIFY(!shown.dialog.isVisible());
        QCOMPARE(shown.dialog.result(), int(QDialog::Accepted));
        QCOMPARE(shown.textAt(1), QStringLiteral("Шурупы"));
    }

    void cancelAndEscapeWriteNothing_data() {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("button") << false;
        QTest::newRow("key") << true;
    }
    void cancelAndEscapeWriteNothing() {
        QFETCH(bool, byKey);
        const auto value = goods();
        shownDialog shown(*value);
        QSignalSpy applied(&shown.dialog, &DemoDialogForListOfValuesChange::applied);
        QSignalSpy rejected(&shown.dialog, &QDialog::rejected);
        shown.retype(0, "Шурупы");
        if (byKey) {
            QTest::keyClick(shown.lines[0], Qt::Key_Escape);
        } else {
            shown.press("Cancel");
        }
        QVERIFY(!shown.dialog.isVisible());
        QCOMPARE(rejected.count(), 1);
        QCOMPARE(applied.count(), 0);
        QCOMPARE(shown.textAt(1), QStringLiteral("Гвозди <100 мм>"));
    }

    void onlyChangedFieldsAreWritten() {
        const auto value = goods();
        shownDialog shown(*value);
        shown.retype(1, "5");
        shown.press("Apply");
        // A program changes the list behind the dialog.
        shown.list->valueAt(2).setVal(6.0);
        shown.list->valueAt(1).setVal(localText(u"Клей"));
        shown.list->valueAt(3).setVal(8.0);
        shown.press("OK");
        QCOMPARE(shown.textAt(1), QStringLiteral("Клей"));
        QCOMPARE(shown.list->valueAt(2).num, 6.0);
        QCOMPARE(shown.list->valueAt(3).num, 8.0);
    }

    void numberFieldTakesNumbersOnly() {
        const auto value = goods();
        shownDialog shown(*value);
        shown.retype(1, "1a2.3.4 5");
        QCOMPARE(shown.lines[1]->text(), QStringLiteral("12.345"));
        shown.press("Apply");
        QCOMPARE(shown.list->valueAt(2).num, 12.345);
        // A comma is not lost, or 12,5 would become 125.
        shown.retype(1, "-12,5");
        QCOMPARE(shown.lines[1]->text(), QStringLiteral("-12.5"));
        shown.press("Apply");
        QCOMPARE(shown.list->valueAt(2).num, -12.5);
        shown.lines[1]->clear();
        QTest::keyClicks(shown.lines[1], "-");
        shown.press("OK");
        QCOMPARE(shown.list->valueAt(2).num, 0.0);
    }

    void pointBeforeAnOldNumberTakesItAway() {
        const auto value = goods();
        shownDialog shown(*value);
        shown.retype(1, "0.99");
        QTest::keyClick(shown.lines[1], Qt::Key_Home);
        QTest::keyClicks(shown.lines[1], "7.99");
        QCOMPARE(shown.lines[1]->text(), QStringLiteral("7.99"));
        QTest::keyClick(shown.lines[1], Qt::Key_Home);
        QTest::keyClicks(shown.lines[1], "5,75");
        QCOMPARE(shown.lines[1]->text(), QStringLiteral("5.75"));
        shown.press("OK");
        QCOMPARE(shown.list->valueAt(2).num, 5.75);
    }

    void cancelKeepsWhatWasApplied() {
        const auto value = goods();
        shownDialog shown(*value);
        shown.retype(0, "Болты");
        shown.press("Apply");
        shown.retype(0, "Шурупы");
        shown.retype(1, "9");
        shown.press("Cancel");
        QVERIFY(!shown.dialog.isVisible());
        QCOMPARE(shown.textAt(1), QStringLiteral("Болты"));
        QCOMPARE(shown.list->valueAt(2).num, 0.1);
    }

    void typesAndOtherValuesAreKept() {
        const auto value = goods();
        localValueList* const list = localValueList::of(*value);
        list->valueAppend(localText(u"12"), u"Код");
        list->itemAppend(u"Архив").setBoolean(false);
        list->valueAppend(1.0 / 3, u"Доля");
        list->valueAppend(1e21, u"Число");
        shownDialog shown(*value);
        const void* const inner = list->valueAt(4).pointer;
        shown.retype(3, "0013");
        shown.retype(5, "2e3");
        shown.press("OK");
        QCOMPARE(int(list->valueAt(5).type), int(localValueTypeSTRING));
        QCOMPARE(shown.textAt(5), QStringLiteral("0013"));
        QCOMPARE(int(list->valueAt(6).type), int(localValueTypeBOOLEAN));
        QCOMPARE(list->valueAt(6).num, 0.0);
        QCOMPARE(list->valueAt(7).num, 1.0 / 3);
        QCOMPARE(int(list->valueAt(8).type), int(localValueTypeNUMBER));
        QCOMPARE(list->valueAt(8).num, 2000.0);
        QCOMPARE(list->valueAt(4).pointer, inner);
        QCOMPARE(list->presentationGet(5).string(), std::u16string(u"Код"));
    }

    void emptyListHasNoRows() {
        localValueDescription value;
        value.objectBind(new localValueList, localValueList::classDeclaration());
        shownDialog shown(value);
        QVERIFY(shown.dialog.findChildren<QLabel*>().isEmpty());
        shown.press("Apply");
        QVERIFY(shown.dialog.isVisible());
        shown.press("OK");
        QCOMPARE(shown.list->size(), std::size_t(0));
    }

    void longTextsAreNotCut() {
        localValueDescription value;
        auto* const list = new localValueList;
        value.objectBind(list, localValueList::classDeclaration());
        const std::u16string text = std::u16string(100000, u'я') + u"\nвторая строка";
        list->valueAppend(localText(text), u"Текст");
        shownDialog shown(value);
        shown.lines[0]->setFocus();
        QTest::keyClick(shown.lines[0], Qt::Key_End);
        QTest::keyClicks(shown.lines[0], "!");
        shown.press("OK");
        QVERIFY(list->valueAt(1).wStr.string() == text + u'!');
    }

    void listThatBecameShorterIsWrittenAsFarAsItGoes() {
        const auto value = goods();
        shownDialog shown(*value);
        shown.retype(0, "Болты");
        shown.retype(1, "2");
        QVERIFY(shown.list->valueRemove(2));
        QVERIFY(shown.list->valueRemove(2));
        QVERIFY(shown.list->valueRemove(2));
        shown.press("OK");
        QCOMPARE(shown.list->size(), std::size_t(1));
        QCOMPARE(shown.textAt(1), QStringLiteral("Болты"));
    }

    void dialogKeepsTheListAlive() {
        const auto before = localValueList::counterStaticTotal;
        {
            auto value = goods();
            shownDialog shown(*value);
            value.reset();
            QCOMPARE(localValueList::counterStaticTotal, before + 2);
            shown.retype(0, "Болты");
            shown.press("OK");
            QCOMPARE(shown.textAt(1), QStringLiteral("Болты"));
        }
        QCOMPARE(localValueList::counterStaticTotal, before);
    }

    void longListScrolls() {
        localValueDescription value;
        auto* const list = new localValueList;
        value.objectBind(list, localValueList::classDeclaration());
        for (int i = 0; i < 1000; ++i) {
            list->valueAppend(double(i), localText(u"Ряд"));
        }
        std::u16string caption;
        while (caption.size() < 400) {
            caption += u"Наименование ";
        }
        list->valueAppend(0.0, localText(caption));
        shownDialog shown(value);
        QVERIFY(shown.dialog.height() < 800);
        // All of a row is in sight without scrolling sideways.
        auto* const scroll = shown.dialog.findChild<QScrollArea*>();
        QCOMPARE(scroll->horizontalScrollBar()->maximum(), 0);
        // Tab and Shift+Tab take the view along.
        QVERIFY(QTest::qWaitForWindowActive(&shown.dialog));
        shown.lines[0]->setFocus();
        for (int i = 0; i < 500; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QVERIFY(shown.lines[500]->hasFocus());
        QVERIFY(!shown.lines[500]->visibleRegion().isEmpty());
        QVERIFY(shown.lines[0]->visibleRegion().isEmpty());
        QVERIFY(shown.dialog.width() < 800);
        QVERIFY(saveScreenshot(shown.dialog, QStringLiteral("listChangeLong")));
        shown.retype(999, "-1");
        shown.press("OK");
        QCOMPARE(list->valueAt(1000).num, -1.0);
        QCOMPARE(list->valueAt(999).num, 998.0);
    }

    void otherValuesHaveNoRows() {
        localValueDescription number;
        shownDialog shown(number);
        QVERIFY(shown.lines.isEmpty());
        shown.press("OK");
        QVERIFY(!shown.dialog.isVisible());
    }
};

QTEST_MAIN(listChange)
#include "listChange.moc"
