// Fields of forms: what they make of a variable, what they store, keys, choosing a number.
#include <QClipboard>
#include <QInputDialog>
#include <QSignalSpy>

#include "formTest.h"
#include "localSxlVcl/sheet/localSxl.h"
#include "localVCL/edit/localVclEditWidgetNumeric.h"

class formFields : public formTest {
    Q_OBJECT

    using Changed = QSignalSpy;

    // The line of a field with the keyboard in it and its text selected.
    static QLineEdit* entered(const localForm* form, int number = 0) {
        QLineEdit* const edit = line(form, number);
        edit->setFocus();
        edit->selectAll();
        return edit;
    }

private slots:
    void aFieldIsWhatItsVariableIs() {
        localForm* const form =
            open(edit(0, " имя\t\n") + edit(1, "число", "Число") + edit(2, "новая", "other") +
                     edit(3, "module", "Строка") + edit(4, "switch", "Число"),
                 "имя = \"Гвоздь\"; module = 7; switch = ИСТИНА;");
        const localVclWidgetEdit* const text = field(form);
        QCOMPARE(text->variableName(), u"имя");
        QCOMPARE(text->objectName(), "localVclEditWidget имя");
        QCOMPARE(text->frameStyle(), 50);
        QCOMPARE(text->lineWidth(), 2);
        QCOMPARE(text->midLineWidth(), 2);
        QCOMPARE(line(form)->text(), "Гвоздь");
        QVERIFY(!line(form)->hasFrame());
        QCOMPARE(line(form)->objectName(), "localVclEditWidget::QLineEdit имя");
        QVERIFY(text->button(localVclWidgetEdit::Button::choose) == nullptr);

        auto* const numeric = qobject_cast<localVclEditWidgetNumeric*>(line(form, 1));
        QVERIFY(numeric != nullptr);
        QCOMPARE(numeric->text(), "       0.000");
        QCOMPARE(numeric->objectName(), "localVclEditWidget::localVclLineEditNumeric число");
        const QPushButton* const choose =
            field(form, 1)->button(localVclWidgetEdit::Button::choose);
        QCOMPARE(choose->text(), "..");
        QCOMPARE(choose->objectName(), "localVclEditWidget::buttonChooseчисло");
        QVERIFY(field(form, 1)->button(localVclWidgetEdit::Button::open) == nullptr);

        QCOMPARE(value(form, "новая"), "");
        QCOMPARE(line(form, 3)->text(), "       7.000");
        QCOMPARE(line(form, 4)->text(), "ИСТИНА");
        QVERIFY(line(form, 4)->isReadOnly());
        QCOMPARE(line(form, 4)->cursorPosition(), 0);
        QVERIFY(saveScreenshot(*form->window(), "formFields"));
    }

    void whatIsTypedIsStored() {
        localForm* const form = open(edit(0, "a") + edit(1, "b"), "b = \"old\";");
        Changed changed(field(form), &localVclWidgetEdit::varValueChanged);
        QTest::keyClicks(entered(form), "new");
        QCOMPARE(value(form, "a"), "");
        QTest::keyClick(line(form), Qt::Key_Tab);
        QCOMPARE(value(form, "a"), "new");
        QCOMPARE(changed.size(), 1);
        QTest::keyClick(entered(form, 1), Qt::Key_Delete);
        QTest::keyClick(line(form, 1), Qt::Key_Tab);
        QCOMPARE(value(form, "b"), "");
    }
    void aVariableAroundTheFormIsStoredThere() {
        QVERIFY(run("outer = \"before\";"));
        localForm* const form = open(edit(0, "outer"));
        QTest::keyClicks(entered(form), "after");
        QTest::keyClick(line(form), Qt::Key_Tab);
        const localTurn::Hold turn;
        QCOMPARE(localVclQString(localContextUTF8::globalContext->varToString(u"outer")), "after");
    }

    void numbersAreStoredWhenTheyChange() {
        localForm* const form = open(edit(0, "n", "Число") + edit(1, "fine"), "n = 5; fine = 1/3;");
        Changed changed(field(form), &localVclWidgetEdit::varValueChanged);
        QTest::keyClick(entered(form), Qt::Key_Tab);
        QCOMPARE(changed.size(), 0);
        QTest::keyClicks(entered(form), "12.5");
        QTest::keyClick(line(form), Qt::Key_Tab);
        QCOMPARE(value(form, "n"), "12.5");
        QCOMPARE(changed.size(), 1);
        // The field shows three decimals of a number that has more.
        Changed fine(field(form, 1), &localVclWidgetEdit::varValueChanged);
        QTest::keyClick(entered(form, 1), Qt::Key_Tab);
        QCOMPARE(fine.size(), 0);
        QVERIFY(value(form, "fine").startsWith("0.3333333"));
    }
    void lettersAreNoNumbers() {
        localForm* const form = open(edit(0, "n", "Число"));
        QTest::keyClicks(entered(form), "1a2w-3");
        QVERIFY2(!line(form)->text().contains(QRegularExpression("[a-z]")),
                 qPrintable(line(form)->text()));
        QTest::keyClicks(entered(form), "x7");
        QTest::keyClick(line(form), Qt::Key_Tab);
        QCOMPARE(value(form, "n"), "7");
        QTest::keyClicks(entered(form), "-1.5");
        QTest::keyClick(line(form), Qt::Key_Tab);
        QCOMPARE(value(form, "n"), "-1.5");
        QApplication::clipboard()->setText("word");
        QTest::keySequence(entered(form), QKeySequence::Paste);
        QTest::keyClick(line(form), Qt::Key_Tab);
        QCOMPARE(value(form, "n"), "-1.5");
    }

    // Numbers are shown by their editor alone, texts at every refresh but where the person is.
    void whatAProgramChangesIsShown() {
        localForm* const form =
            open(edit(0, "t") + edit(1, "n", "Число") + button(2, "t = \"new\"; n = 9;"),
                 "t = \"old\"; n = 1;");
        QTest::keyClicks(entered(form), "typing");
        set(form, "t", u"other");
        form->refresh();
        QCOMPARE(line(form)->text(), "typing");
        press(form);
        QCOMPARE(value(form, "t"), "new");
        QCOMPARE(line(form)->text(), "new");
        QCOMPARE(line(form, 1)->text(), "       1.000");
    }

    void returnStoresAndTells() {
        localForm* const form = open(edit(0, "a") + label(1, "a"));
        QTest::keyClicks(entered(form), "typed");
        QTest::keyClick(line(form), Qt::Key_Return);
        QCOMPARE(value(form, "a"), "typed");
        QCOMPARE(shown(form), "typed");
        QCOMPARE(QApplication::focusWidget(), line(form));
    }

    // A table document stands in its field as a sheet, whichever the variable holds now.
    void aTableDocumentIsASheet() {
        localForm* const form =
            open(widget("Edit", "x=\"10\" y=\"10\" w=\"360\" h=\"160\" Identifier=\"s\" "
                                "Type=\"Табличный документ\"") +
                     button(6, "s.CLEAR(); s.CELLTEXTSET(1, 1, \"Отчёт\");") +
                     button(7, "s = CREATEOBJECT(\"TABLEDOCUMENT\"); "
                               "s.CELLTEXTSET(1, 1, \"Другой\");"),
                 "s = 5;");
        const auto cell = [&] {
            const localTurn::Hold turn;
            const auto* const sheet = qobject_cast<localSxl*>(field(form)->editor());
            return sheet == nullptr ? QString("no sheet") : sheet->cellText(1, 1);
        };
        QCOMPARE(cell(), "");
        QCOMPARE(field(form)->editor()->focusPolicy(), Qt::StrongFocus);
        press(form);
        QCOMPARE(cell(), "Отчёт");
        QTest::qWait(50);
        QVERIFY(saveScreenshot(*form->window(), "formSheet"));
        press(form, 1);
        QCOMPARE(cell(), "Другой");
        QTest::keyClick(field(form)->editor(), Qt::Key_F4);
        form->refresh();
        QCOMPARE(form->findChildren<localVclWidgetEdit*>().size(), 1);
        host_.answers = {Button::yes};
        QVERIFY(form->window()->close());
    }

    void f4ChoosesANumber() {
        localForm* const form = open(edit(0, "n", "Число") + label(1, "n"), "n = 2.5;");
        QTest::keyClick(entered(form), Qt::Key_F4);
        QInputDialog* const dialog = field(form)->selectionDialog();
        QVERIFY(dialog != nullptr && dialog->isVisible() && !dialog->isModal());
        QCOMPARE(dialog->windowTitle(), "Проба QInputDialog");
        QCOMPARE(dialog->labelText(), "Ввести число:");
        QCOMPARE(dialog->doubleDecimals(), 3);
        QCOMPARE(dialog->doubleMaximum(), 2000000000.0);
        QCOMPARE(dialog->doubleValue(), 2.5);
        QTest::keyClick(entered(form), Qt::Key_F4);
        QCOMPARE(form->findChildren<QInputDialog*>().size(), 1);
        dialog->setDoubleValue(1234567.891);
        dialog->accept();
        // Six digits of it. Meant.
        QCOMPARE(value(form, "n"), "1234570");
        QCOMPARE(shown(form), "1234570");
        QVERIFY(line(form)->hasSelectedText());
        QTRY_VERIFY(field(form)->selectionDialog() == nullptr);
    }
    void theButtonChoosesANumber() {
        localForm* const form = open(edit(0, "n", "Число"));
        QPushButton* const choose = field(form)->button(localVclWidgetEdit::Button::choose);
        QTest::mouseClick(choose, Qt::LeftButton);
        QInputDialog* const dialog = field(form)->selectionDialog();
        QVERIFY(dialog != nullptr);
        // Open brings a dialog back with the value of now.
        {
            const localTurn::Hold turn;
            form->context()->varFind(u"n")->value->setVal(8.0);
        }
        dialog->hide();
        field(form)->buttonOpenClickSlot();
        QVERIFY(dialog->isVisible());
        QCOMPARE(dialog->doubleValue(), 8.0);
        dialog->reject();
        QTRY_VERIFY(field(form)->selectionDialog() == nullptr);
        field(form)->buttonOpenClickSlot();
        QVERIFY(output_->text().contains("localVclEditWidget n func: open"));
    }
    void f4InATextDoesNothing() {
        localForm* const form = open(edit(0, "t"));
        QTest::keyClick(entered(form), Qt::Key_F4);
        QVERIFY(field(form)->selectionDialog() == nullptr);
    }
    void aDialogGoesWithItsForm() {
        localForm* const form = open(edit(0, "n", "Число"));
        QTest::keyClick(entered(form), Qt::Key_F4);
        const QPointer<QInputDialog> dialog = field(form)->selectionDialog();
        host_.answers = {Button::yes};
        form->window()->close();
        QVERIFY(dialog == nullptr);
    }

    // A field whose variable a program has taken away rests.
    void aVariableMayGo() {
        localForm* const form = open(edit(0, "n", "Число") + edit(1, "t"), "n = 1; t = \"a\";");
        QTest::keyClick(entered(form), Qt::Key_F4);
        QInputDialog* const dialog = field(form)->selectionDialog();
        {
            const localTurn::Hold turn;
            form->context()->varRemoveAll();
        }
        dialog->accept();
        form->refresh();
        QTest::keyClicks(entered(form), "2");
        QTest::keyClick(line(form), Qt::Key_Return);
        QTest::mouseClick(field(form)->button(localVclWidgetEdit::Button::choose), Qt::LeftButton);
        QTest::keyClicks(entered(form, 1), "x");
        QTest::keyClick(line(form, 1), Qt::Key_F4);
        QTest::keyClick(line(form, 1), Qt::Key_Tab);
        QVERIFY(host_.calls.empty());
    }

    // Leaving a field asks 200 formulas and paints none that stayed.
    void formulasThatStayAreNotPainted() {
        QString labels;
        for (int i = 0; i < 200; ++i) {
            labels += label(1, "a");
        }
        localForm* const form = open(edit(0, "b") + labels, "a = 1;");
        QTest::qWait(100);
        struct Paints : QObject {
            int count = 0;
            bool eventFilter(QObject*, QEvent* event) override {
                count += event->type() == QEvent::Paint;
                return false;
            }
        } paints;
        for (QLabel* const shownLabel : form->findChildren<QLabel*>()) {
            shownLabel->installEventFilter(&paints);
        }
        QTest::keyClicks(entered(form), "x");
        QTest::keyClick(line(form), Qt::Key_Return);
        form->refresh();
        QTest::qWait(50);
        QVERIFY2(paints.count < 20, qPrintable(QString::number(paints.count)));
    }
};

QTEST_MAIN(formFields)
#include "formFields.moc"
