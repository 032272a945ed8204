// The editor of programs: what is seen, search, jumps and keys, as a person uses them.

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QInputDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiArea>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>

#include "editorTest.h"
#include "localVCL/dialog/localVclListDialog.h"
#include "localVCL/editor/localDialogFindString.h"
#include "localVCL/editor/localVclPrgTextHighlighter.h"
#include "localVCL/font/localVclFont.h"
#include "screenshot.h"

using namespace editorTest;

class editor : public test {
    Q_OBJECT

private slots:
    void constructed();
    void demonstration();
    void coloursOfEachRule();
    void commentEndsWithItsLine();
    void keywordsInAnyCase();
    void coloursFollowTyping();
    void lineNumberStripWidens();
    void currentLineIsMarked();
    void stripFollowsScrolling();
    void manyLinesAreColouredInViewOnly();
    void aKeyColoursItsOwnLine();
    void insertedTextIsColouredInViewOnly();
    void findForwardAndWrap();
    void findBackwardAndWrap();
    void findCaseSensitive();
    void findNothingRestoresTheCursor();
    void findDialogAndHistory();
    void findDialogRejected();
    void findEmptyText();
    void findNextWithoutHistory();
    void lineJump();
    void lineJumpToZero();
    void lineJumpRefused();
    void gotoProcedure();
    void gotoProcedureOfLinesThatReadAlike();
    void gotoProcedureRejected();
    void gotoProcedureWithoutAny();
    void commentOneLine();
    void commentSelection();
    void commentKeysWithShift();
    void commentManyLines();
    void redoKey();
    void diagnosisKey();
    void maximiseKey();
    void passedOnKey();
    void otherKeysType();
};

// What it looks like ------------------------------------------------------------------------------

void editor::constructed() {
    testedEditor edit(u"a.prg", u"x=1;\ny=2;");
    QCOMPARE(text(edit), QString("x=1;\ny=2;"));
    QCOMPARE(edit.fileName(), std::u16string(u"a.prg"));
    QCOMPARE(shownTitle(edit), QString("a.prg"));
    QCOMPARE(edit.lineWrapMode(), QPlainTextEdit::NoWrap);
    QCOMPARE(edit.font().family(), localVclFont(3).family());
    QCOMPARE(edit.font().pointSize(), 10);
    QVERIFY(QFontInfo(edit.font()).fixedPitch());
    const QFontMetrics metrics(edit.font());
    QCOMPARE(metrics.horizontalAdvance(QChar(u'W')), metrics.horizontalAdvance(QChar(u'i')));
    QCOMPARE(metrics.horizontalAdvance(QChar(u'Щ')), metrics.horizontalAdvance(QChar(u'i')));
    QCOMPARE(edit.tabStopDistance(), 8.0 * metrics.horizontalAdvance(u'9'));
    QVERIFY(!edit.document()->isModified());
}

void editor::demonstration() {
    localVclWidgetEditor edit;
    QCOMPARE(shownTitle(edit), QString("test"));
    QCOMPARE(edit.fileName(), std::u16string(u"W:\\4\\test.prgS"));
    QCOMPARE(
        text(edit),
        QString(
            "пол=создатьОбъект(\"Справочник.Товары\");\nпол.выбратьЭлементы();\n"
            "если 1=пол.выбран() тогда\n  сообщить(пол.наименование);\nконецЕсли;\nвозврат 1;\n"));
    edit.show();
    QVERIFY(QTest::qWaitForWindowExposed(&edit));
    QVERIFY(!edit.verticalScrollBar()->isVisible());
    QVERIFY(saveScreenshot(edit, "editorDemonstration"));
}

void editor::coloursOfEachRule() {
    const QString program = "// Обход товаров: цены читаются из списка.\n"
                            "ФУНКЦИЯ ценаТовара(товар, списокЦен)\n"
                            "    ПЕРЕМ цена;\n"
                            "    цена = списокЦен.GET(товар);\n"
                            "    ЕСЛИ (цена > 100) ТОГДА\n"
                            "        сообщить(\"Дорого: \" + СТРОКА(цена)); // печать\n"
                            "    КОНЕЦЕСЛИ;\n"
                            "    ВОЗВРАТ цена;\n"
                            "КОНЕЦФУНКЦИИ;\n"
                            "\n"
                            "list = CREATEOBJECT(\"VALUELIST\");\n"
                            "FOR i = 1 TO 10 DO\n"
                            "    list.VALUEADD(i * 2);\n"
                            "\tlabel = QLabel('текст');\n"
                            "ENDDO;\n"
                            "? ценаТовара(\"чай\", list);\n";
    auto* const edit = new testedEditor(u"товары.prg", program.toStdU16String());
    edit->openWindow();
    QVERIFY(QTest::qWaitForWindowExposed(edit->window()));

    QVERIFY(hasColour(formatAt(*edit, 0, 0), Qt::darkGreen, true));
    QVERIFY(hasColour(formatAt(*edit, 0, 12), Qt::darkGreen, true));
    QVERIFY(hasColour(formatAt(*edit, 1, 0), Qt::red, false));           // ФУНКЦИЯ
    QCOMPARE(formatAt(*edit, 1, 10), QTextCharFormat());                 // ценаТовара
    QVERIFY(hasColour(formatAt(*edit, 1, 18), Qt::red, true));           // (
    QVERIFY(hasColour(formatAt(*edit, 5, 8), Qt::red, true));            // сообщить
    QVERIFY(hasColour(formatAt(*edit, 5, 17), Qt::black, false));        // a text
    QVERIFY(hasColour(formatAt(*edit, 5, 30), Qt::red, true));           // СТРОКА
    QVERIFY(hasColour(formatAt(*edit, 5, 46), Qt::darkGreen, true));     // печать
    QVERIFY(hasColour(formatAt(*edit, 13, 9), Qt::darkMagenta, false));  // QLabel
    QCOMPARE(formatAt(*edit, 13, 9).fontWeight(), int(QFont::Bold));
    QVERIFY(hasColour(formatAt(*edit, 13, 17), Qt::black, false));  // 'текст'

    edit->positionShow(static_cast<std::size_t>(program.indexOf("цена > 100")));
    QVERIFY(saveScreenshot(*edit->window(), "editor"));
}

void editor::commentEndsWithItsLine() {
    testedEditor edit(u"", u"x=1; // if\nif\n//\nthen");
    QVERIFY(!hasColour(formatAt(edit, 0, 3), Qt::darkGreen, true));
    for (int column = 5; column < 10; ++column) {
        QVERIFY(hasColour(formatAt(edit, 0, column), Qt::darkGreen, true));
    }
    QVERIFY(hasColour(formatAt(edit, 1, 0), Qt::red, false));
    QVERIFY(hasColour(formatAt(edit, 3, 0), Qt::red, false));
    for (QTextBlock block = edit.document()->begin(); block.isValid(); block = block.next()) {
        QCOMPARE(block.userState(), 0);
    }
}

void editor::keywordsInAnyCase() {
    testedEditor edit(u"", u"WHILE while WhIlE Пока пОКА\nQОкно qwindow");
    for (const int column : {0, 6, 12, 18, 23}) {
        QVERIFY(hasColour(formatAt(edit, 0, column), Qt::red, false));
    }
    QVERIFY(hasColour(formatAt(edit, 1, 0), Qt::darkMagenta, false));
    QCOMPARE(formatAt(edit, 1, 6), QTextCharFormat());
}

void editor::coloursFollowTyping() {
    testedEditor edit(u"");
    edit.show();
    QTest::keyClicks(&edit, "i");
    QCOMPARE(formatAt(edit, 0, 0), QTextCharFormat());
    QTest::keyClicks(&edit, "f");
    QVERIFY(hasColour(formatAt(edit, 0, 0), Qt::red, false));
    QTest::keyClicks(&edit, "x");
    QCOMPARE(formatAt(edit, 0, 0), QTextCharFormat());
    QTest::keyClick(&edit, Qt::Key_Return);
    QTest::keyClicks(&edit, "then");
    QVERIFY(hasColour(formatAt(edit, 1, 0), Qt::red, false));
}

void editor::lineNumberStripWidens() {
    testedEditor edit(u"");
    edit.show();
    const int digit = edit.fontMetrics().horizontalAdvance(u'9');
    int expectedDigits = 1;
    for (const int lines : {1, 9, 10, 99, 100, 999, 1000, 99, 9}) {
        expectedDigits = static_cast<int>(QString::number(lines).size());
        edit.textSet(QString(lines - 1, '\n').toStdU16String());
        QCOMPARE(edit.blockCount(), lines);
        QCOMPARE(edit.lineNumberAreaWidth(), digit * expectedDigits + 23);
        QCOMPARE(edit.viewportMargins(), QMargins(digit * expectedDigits + 23, 5, 5, 5));
        QCOMPARE(edit.viewport()->x(), edit.contentsRect().x() + digit * expectedDigits + 23);
    }
    // Also by a key.
    edit.textSet(QString(8, '\n').toStdU16String());
    QTest::keyClick(&edit, Qt::Key_Return);
    QCOMPARE(edit.viewportMargins().left(), digit * 2 + 23);
}

void editor::currentLineIsMarked() {
    testedEditor edit(u"", u"a\nb\nc");
    QCOMPARE(edit.extraSelections().size(), 1);
    QCOMPARE(edit.extraSelections()[0].cursor.blockNumber(), 0);
    QTest::keyClick(&edit, Qt::Key_Down);
    QCOMPARE(edit.extraSelections().size(), 1);
    QCOMPARE(edit.extraSelections()[0].cursor.blockNumber(), 1);
    QVERIFY(edit.extraSelections()[0].format.boolProperty(QTextFormat::FullWidthSelection));
}

void editor::stripFollowsScrolling() {
    testedEditor edit(u"", manyLines(2000).toStdU16String());
    edit.show();
    QVERIFY(QTest::qWaitForWindowExposed(&edit));
    const auto shown = [&] { return edit.screen()->grabWindow(edit.winId()).toImage(); };
    for (const int line : {1, 2, 5, 4, 3, 1000, 999, 0, 3}) {
        edit.verticalScrollBar()->setValue(line);
        QTest::qWait(20);
        const QImage scrolled = shown();
        edit.repaint();
        for (QWidget* const part : edit.findChildren<QWidget*>()) {
            part->update();
        }
        QTest::qWait(20);
        QCOMPARE(scrolled, shown());
    }
}

void editor::manyLinesAreColouredInViewOnly() {
    testedEditor edit(u"");
    edit.show();
    QVERIFY(QTest::qWaitForWindowExposed(&edit));
    QTest::qWait(50);
    const auto before = edit.highlighter().colouredCount();
    edit.textSet(manyLines(50000).toStdU16String());
    // The first screen has its colours before any event is handled.
    QVERIFY(hasColour(formatAt(edit, 0, 0), Qt::red, false));
    QVERIFY(hasColour(formatAt(edit, 40, 0), Qt::red, false));
    QTest::qWait(100);
    QVERIFY2(edit.highlighter().colouredCount() - before < 400,
             qPrintable(QString::number(edit.highlighter().colouredCount() - before)));
    QCOMPARE(formatAt(edit, 25000, 0), QTextCharFormat());

    // What comes into view is coloured then, and nothing on the way there.
    edit.lineShow(25001);
    QTest::qWait(100);
    QVERIFY(hasColour(formatAt(edit, 25000, 0), Qt::red, false));
    QVERIFY(hasColour(formatAt(edit, edit.firstVisibleBlock().blockNumber(), 0), Qt::red, false));
    QCOMPARE(formatAt(edit, 12000, 0), QTextCharFormat());
    edit.verticalScrollBar()->setValue(edit.verticalScrollBar()->maximum());
    QTest::qWait(100);
    QVERIFY(hasColour(formatAt(edit, 49999, 0), Qt::red, false));
    QVERIFY(edit.highlighter().colouredCount() - before < 1200);
    QVERIFY(!edit.document()->isModified());
    QVERIFY(!edit.document()->isUndoAvailable());
}

void editor::aKeyColoursItsOwnLine() {
    testedEditor edit(u"");
    edit.show();
    edit.textSet(manyLines(50000).toStdU16String());
    edit.lineShow(30000);
    QTest::qWait(100);
    const auto before = edit.highlighter().colouredCount();
    QTest::keyClick(&edit, Qt::Key_X);
    QTest::qWait(50);
    QCOMPARE(edit.highlighter().colouredCount() - before, 1);
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QTest::qWait(50);
    QCOMPARE(edit.highlighter().colouredCount() - before, 2);
    // Of two halves of a line both, and the line that follows a new one.
    QTest::keyClick(&edit, Qt::Key_Return);
    QTest::qWait(50);
    QVERIFY(edit.highlighter().colouredCount() - before <= 5);
    QVERIFY(hasColour(formatAt(edit, 30000, 0), Qt::red, false));
}

void editor::insertedTextIsColouredInViewOnly() {
    testedEditor edit(u"", u"x\n");
    edit.show();
    QTest::qWait(50);
    const auto before = edit.highlighter().colouredCount();
    edit.insertPlainText(manyLines(20000));
    QTest::qWait(100);
    QVERIFY(edit.highlighter().colouredCount() - before < 700);
    QVERIFY(hasColour(formatAt(edit, edit.firstVisibleBlock().blockNumber(), 0), Qt::red, false));
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(text(edit), QString("x\n"));
}

// Search ------------------------------------------------------------------------------------------

void editor::findForwardAndWrap() {
    testedEditor edit(u"", u"one\ntwo One\nthree");
    edit.findText("one", {});
    QCOMPARE(edit.textCursor().selectionStart(), 0);
    edit.findText("one", {});
    QCOMPARE(edit.textCursor().selectionStart(), 8);
    edit.findText("one", {});
    QCOMPARE(edit.textCursor().selectionStart(), 0);
}

void editor::findBackwardAndWrap() {
    testedEditor edit(u"", u"one\ntwo One\nthree");
    edit.findText("one", QTextDocument::FindBackward);
    QCOMPARE(edit.textCursor().selectionStart(), 8);
    edit.findText("one", QTextDocument::FindBackward);
    QCOMPARE(edit.textCursor().selectionStart(), 0);
    edit.findText("one", QTextDocument::FindBackward);
    QCOMPARE(edit.textCursor().selectionStart(), 8);
}

void editor::findCaseSensitive() {
    testedEditor edit(u"", u"если Если");
    edit.findText("Если", QTextDocument::FindCaseSensitively);
    QCOMPARE(edit.textCursor().selectionStart(), 5);
    edit.findText("Если", QTextDocument::FindCaseSensitively);
    QCOMPARE(edit.textCursor().selectionStart(), 5);
    edit.findText("Если", {});
    QCOMPARE(edit.textCursor().selectionStart(), 0);
}

void editor::findNothingRestoresTheCursor() {
    testedEditor edit(u"", manyLines(500).toStdU16String());
    edit.show();
    edit.lineShow(250);
    QTextCursor cursor = edit.textCursor();
    cursor.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor, 3);
    edit.setTextCursor(cursor);
    const int scrolled = edit.verticalScrollBar()->value();
    QVERIFY(scrolled > 0);
    for (const QTextDocument::FindFlags flags :
         {QTextDocument::FindFlags(), QTextDocument::FindFlags(QTextDocument::FindBackward)}) {
        QString said;
        QString buttons;
        answer<QMessageBox> box([&](QMessageBox& shown) {
            said = shown.text();
            for (QAbstractButton* const button : shown.buttons()) {
                buttons += QString(button->text()).remove('&');
            }
            QTest::keyClick(&shown, Qt::Key_Return);
        });
        edit.findText("нет такого", flags);
        QCOMPARE(box.count, 1);
        QCOMPARE(said, QString("String not found."));
        QCOMPARE(buttons, QString("OK"));
        QCOMPARE(edit.textCursor().position(), cursor.position());
        QCOMPARE(edit.textCursor().anchor(), cursor.anchor());
        QCOMPARE(edit.verticalScrollBar()->value(), scrolled);
    }
}

void editor::findDialogAndHistory() {
    testedEditor edit(u"", u"aa bb\nAA BB\naa bb");
    edit.show();
    const auto ask = [&](const QString& what, bool sense, bool back, int key, bool shoot = false) {
        answer<localDialogFindString> dialog([&](localDialogFindString& shown) {
            auto* const words = shown.findChild<QComboBox*>();
            words->lineEdit()->selectAll();
            QTest::keyClicks(words->lineEdit(), what);
            for (auto* const box : shown.findChildren<QAbstractButton*>()) {
                if (box->text() == "Учитывать регистр") {
                    box->setChecked(sense);
                } else if (box->text() == (back ? "Назад" : "Вперёд")) {
                    box->click();
                }
            }
            if (shoot) {
                QVERIFY(saveScreenshot(shown, "editorFind"));
            }
            QTest::keyClick(words->lineEdit(), Qt::Key_Return);
        });
        QTest::keyClick(&edit, Qt::Key(key), Qt::ControlModifier);
        QCOMPARE(dialog.count, 1);
    };
    ask("bb", false, false, Qt::Key_F);
    QCOMPARE(edit.textCursor().selectionStart(), 3);
    ask("BB", true, false, Qt::Key_F3);
    QCOMPARE(edit.textCursor().selectionStart(), 9);
    ask("aa", false, true, Qt::Key_F, true);
    QCOMPARE(edit.textCursor().selectionStart(), 6);
    // F3 goes on with the last text and the last direction.
    QTest::keyClick(&edit, Qt::Key_F3);
    QCOMPARE(edit.textCursor().selectionStart(), 0);
    QTest::keyClick(&edit, Qt::Key_F3);
    QCOMPARE(edit.textCursor().selectionStart(), 12);
    // A text searched for again moves to the end.
    ask("bb", false, false, Qt::Key_F);
    QCOMPARE(edit.findHistory(), (std::vector<std::u16string>{u"BB", u"aa", u"bb"}));
    QString offered;
    bool labels = false;
    answer<localDialogFindString> dialog([&](localDialogFindString& shown) {
        auto* const words = shown.findChild<QComboBox*>();
        for (int i = 0; i < words->count(); ++i) {
            offered += words->itemText(i) + " ";
        }
        labels = shown.findChild<QCheckBox*>()->text() == "Учитывать регистр" &&
                 shown.findChild<QGroupBox*>()->title() == "Направление" &&
                 shown.findChild<QPushButton*>()->text() == "Искать";
        QTest::keyClick(&shown, Qt::Key_Escape);
    });
    QTest::keyClick(&edit, Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(offered, QString("bb aa BB "));
    QVERIFY(labels);
}

void editor::findDialogRejected() {
    testedEditor edit(u"", u"aa aa");
    edit.show();
    answer<localDialogFindString> dialog([](localDialogFindString& shown) {
        shown.findChild<QComboBox*>()->setEditText("aa");
        QTest::keyClick(&shown, Qt::Key_Escape);
    });
    QTest::keyClick(&edit, Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(dialog.count, 1);
    QVERIFY(edit.findHistory().empty());
    QVERIFY(!edit.textCursor().hasSelection());
}

void editor::findEmptyText() {
    testedEditor edit(u"", u"aa aa");
    edit.show();
    QTest::keyClick(&edit, Qt::Key_End);
    answer<localDialogFindString> dialog(
        [](localDialogFindString& shown) { QTest::keyClick(&shown, Qt::Key_Return); });
    QTest::keyClick(&edit, Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(dialog.count, 1);
    QVERIFY(edit.findHistory().empty());
    QCOMPARE(edit.textCursor().position(), 5);
    answer<QMessageBox> box([](QMessageBox& shown) { shown.accept(); });
    edit.findText("", {});
    QCOMPARE(box.count, 1);
    QCOMPARE(edit.textCursor().position(), 5);
}

void editor::findNextWithoutHistory() {
    testedEditor edit(u"", u"aa aa");
    edit.show();
    QTest::keyClick(&edit, Qt::Key_F3);
    QVERIFY(!edit.textCursor().hasSelection());
    QCOMPARE(edit.textCursor().position(), 0);
}

// Jumps, comments and other keys ------------------------------------------------------------------

void editor::lineJump() {
    testedEditor edit(u"", manyLines(300).toStdU16String());
    edit.show();
    answer<QInputDialog> dialog([](QInputDialog& shown) {
        QCOMPARE(shown.windowTitle(), QString("Введите номер строки 1 :"));
        QCOMPARE(shown.labelText(), QString("Введите номер строки:"));
        QCOMPARE(shown.intValue(), 1);
        QCOMPARE(shown.intMinimum(), 0);
        QCOMPARE(shown.intMaximum(), 65535);
        QCOMPARE(shown.intStep(), 1);
        shown.setIntValue(150);
        shown.accept();
    });
    QTest::keyClick(&edit, Qt::Key_G, Qt::ControlModifier);
    QCOMPARE(edit.textCursor().blockNumber(), 149);
    QCOMPARE(edit.textCursor().positionInBlock(), 0);
    const int middle = edit.viewport()->height() / 2;
    QVERIFY(std::abs(edit.cursorRect().center().y() - middle) < 2 * edit.fontMetrics().height());
}

void editor::lineJumpToZero() {
    testedEditor edit(u"", u"a\nb\nc");
    edit.show();
    edit.lineShow(2);
    for (const int line : {0, 4, 65535}) {
        answer<QInputDialog> dialog([&](QInputDialog& shown) {
            shown.setIntValue(line);
            shown.accept();
        });
        QTest::keyClick(&edit, Qt::Key_G, Qt::ControlModifier);
        QCOMPARE(dialog.count, 1);
        QCOMPARE(text(edit), QString("a\nb\nc"));
        QCOMPARE(edit.textCursor().blockNumber(), 1);
        QVERIFY(!edit.document()->isModified());
    }
}

void editor::lineJumpRefused() {
    testedEditor edit(u"", u"a\nb\nc");
    edit.show();
    answer<QInputDialog> dialog([&](QInputDialog& shown) {
        shown.setIntValue(3);
        shown.reject();
    });
    QTest::keyClick(&edit, Qt::Key_G, Qt::ControlModifier);
    QCOMPARE(edit.textCursor().blockNumber(), 0);
}

void editor::gotoProcedure() {
    testedEditor edit(
        u"", u"x=1;\nprocedure Zet()\nendprocedure;\n  ФУНКЦИЯ альфа(а)\nконецФункции;\n"
             u"// function hidden()\nfunctionx()\nFunction beta()\nПроцедура Бета()\nx=function()\n"
             u"function Alpha()");
    edit.show();
    QStringList offered;
    QString title;
    const auto choose = [&](int row, int key) {
        outputCapture output;
        answer<localVclQStringListGetItemDialog> dialog(
            [&](localVclQStringListGetItemDialog& shown) {
                title = shown.windowTitle();
                offered.clear();
                auto* const list = shown.findChild<QListWidget*>();
                for (int i = 0; i < list->count(); ++i) {
                    offered.append(list->item(i)->text());
                }
                if (row == 1) {
                    QVERIFY(saveScreenshot(shown, "editorProcedures"));
                }
                list->setCurrentRow(row);
                QTest::keyClick(list, Qt::Key_Return);
            });
        press(edit, key, Qt::AltModifier);
        QCOMPARE(dialog.count, 1);
        QVERIFY(output.text().startsWith("Accepted"));
    };
    choose(1, Qt::Key_P);
    QCOMPARE(title, QString("Выберите (процедуры и функции):"));
    // By the text in capitals and its code units.
    QCOMPARE(offered, (QStringList{"  ФУНКЦИЯ альфа(а)", "function Alpha()", "Function beta()",
                                   "procedure Zet()", "Процедура Бета()"}));
    QCOMPARE(edit.textCursor().blockNumber(), 10);
    choose(0, 0x417);
    QCOMPARE(edit.textCursor().blockNumber(), 3);
    choose(3, Qt::Key_P);
    QCOMPARE(edit.textCursor().blockNumber(), 1);
}

void editor::gotoProcedureOfLinesThatReadAlike() {
    testedEditor edit(u"", u"x\nfunction f()\ny\nfunction f()\nfunction F()");
    edit.show();
    for (const int row : {0, 1, 2}) {
        outputCapture output;
        answer<localVclQStringListGetItemDialog> dialog(
            [&](localVclQStringListGetItemDialog& shown) {
                auto* const list = shown.findChild<QListWidget*>();
                QCOMPARE(list->count(), 3);
                list->setCurrentRow(row);
                QTest::keyClick(list, Qt::Key_Return);
            });
        QTest::keyClick(&edit, Qt::Key_P, Qt::AltModifier);
        QCOMPARE(dialog.count, 1);
        QCOMPARE(edit.textCursor().blockNumber(), row == 2 ? 4 : 1);
    }
}

void editor::gotoProcedureRejected() {
    testedEditor edit(u"", u"x\nfunction f()");
    edit.show();
    outputCapture output;
    answer<QDialog> dialog([](QDialog& shown) { QTest::keyClick(&shown, Qt::Key_Escape); });
    QTest::keyClick(&edit, Qt::Key_P, Qt::AltModifier);
    QCOMPARE(dialog.count, 1);
    QCOMPARE(edit.textCursor().blockNumber(), 0);
}

void editor::gotoProcedureWithoutAny() {
    testedEditor edit(u"", u"x\ny");
    edit.show();
    outputCapture output;
    answer<QDialog> dialog([](QDialog& shown) { shown.accept(); });
    QTest::keyClick(&edit, Qt::Key_P, Qt::AltModifier);
    QCOMPARE(dialog.count, 1);
    QCOMPARE(edit.textCursor().blockNumber(), 0);
}

void editor::commentOneLine() {
    testedEditor edit(u"", u"a\nb\nc");
    edit.lineShow(2);
    QTest::keyClick(&edit, Qt::Key_Slash, Qt::ControlModifier);
    QCOMPARE(text(edit), QString("a\n//b\nc"));
    QTest::keyClick(&edit, Qt::Key_Period, Qt::ControlModifier);
    QCOMPARE(text(edit), QString("a\n////b\nc"));
    QVERIFY(hasColour(formatAt(edit, 1, 4), Qt::darkGreen, true));
}

void editor::commentSelection() {
    testedEditor edit(u"", u"one\ntwo\n\nfour\nfive");
    const auto select = [&](int anchor, int position) {
        QTextCursor cursor = edit.textCursor();
        cursor.setPosition(anchor);
        cursor.setPosition(position, QTextCursor::KeepAnchor);
        edit.setTextCursor(cursor);
    };
    select(5, 10);
    QTest::keyClick(&edit, Qt::Key_Period, Qt::ControlModifier);
    QCOMPARE(text(edit), QString("one\n//two\n//\n//four\nfive"));
    // One step back.
    edit.undo();
    QCOMPARE(text(edit), QString("one\ntwo\n\nfour\nfive"));
    // A selection made upwards, up to the last line.
    select(18, 1);
    QTest::keyClick(&edit, Qt::Key_Slash, Qt::ControlModifier);
    QCOMPARE(text(edit), QString("//one\n//two\n//\n//four\n//five"));
}

void editor::commentKeysWithShift() {
    testedEditor edit(u"", u"a");
    for (const Qt::Key key : {Qt::Key_Slash, Qt::Key_Period}) {
        QTest::keyClick(&edit, key, Qt::ControlModifier | Qt::ShiftModifier);
    }
    QCOMPARE(text(edit), QString("////a"));
}

void editor::commentManyLines() {
    const QString before = manyLines(50000);
    testedEditor edit(u"", before.toStdU16String());
    edit.show();
    QTest::qWait(50);
    const auto coloured = edit.highlighter().colouredCount();
    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_Slash, Qt::ControlModifier);
    QTest::qWait(50);
    QCOMPARE(text(edit), "//" + QString(before).replace("\n", "\n//"));
    QVERIFY(edit.highlighter().colouredCount() - coloured < 700);
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(text(edit), before);
    QVERIFY(!edit.document()->isModified());
    QVERIFY(!edit.document()->isUndoAvailable());
}

void editor::redoKey() {
    testedEditor edit(u"", u"a");
    QTest::keyClick(&edit, Qt::Key_Slash, Qt::ControlModifier);
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(text(edit), QString("a"));
    QTest::keyClick(&edit, Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(text(edit), QString("//a"));
}

void editor::diagnosisKey() {
    testedEditor edit(u"", u"a\nb\nc");
    edit.lineShow(3);
    outputCapture output;
    QTest::keyClick(&edit, Qt::Key_F2, Qt::AltModifier);
    const QRegularExpression line("^\\d\\d\\.\\d\\d\\.\\d{4} \\d\\d:\\d\\d:\\d\\d "
                                  "blockNumber=2 func: .* file: .* line: \\d+\n$");
    QVERIFY2(line.match(output.text()).hasMatch(), qPrintable(output.text()));
    QCOMPARE(text(edit), QString("a\nb\nc"));
}

void editor::maximiseKey() {
    auto* const edit = new testedEditor(u"a");
    edit->openWindow();
    QVERIFY(!edit->window()->isMaximized());
    QTest::keyClick(edit, Qt::Key_F10, Qt::AltModifier);
    QVERIFY(edit->window()->isMaximized());
    QTest::keyClick(edit, Qt::Key_F10, Qt::AltModifier);
    QVERIFY(!edit->window()->isMaximized());
    QVERIFY(edit->window()->isVisible());
}

// A window that shows what comes to its event filter.
class filteringWindow : public QMainWindow {
public:
    bool eventFilter(QObject* watched, QEvent* event) override {
        seen.append(qobject_cast<QPlainTextEdit*>(watched) != nullptr &&
                            event->type() == QEvent::KeyPress
                        ? QString::number(static_cast<QKeyEvent*>(event)->key())
                        : QString());
        return false;
    }
    QStringList seen;
};

class filteringArea : public QMdiArea {
public:
    filteringArea() { setObjectName("localMdiArea"); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::KeyPress &&
            qobject_cast<QPlainTextEdit*>(watched) != nullptr) {
            keys.append(static_cast<QKeyEvent*>(event)->key());
        }
        return QMdiArea::eventFilter(watched, event);
    }
    QList<int> keys;
};

void editor::passedOnKey() {
    filteringWindow window;
    filteringArea area;
    auto* const edit = new testedEditor(u"", u"a");
    window.setCentralWidget(edit);
    QTest::keyClick(edit, Qt::Key_X);
    edit->undo();
    QCOMPARE(text(*edit), QString("a"));
    QTest::keyClick(edit, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(window.seen, QStringList{QString::number(Qt::Key_Z)});
    // An area sees every key of the application once by itself.
    QCOMPARE(area.keys.count(Qt::Key_X), 1);
    QCOMPARE(area.keys.count(Qt::Key_Z), 2);
    // It was not the key that brings back what was undone.
    QCOMPARE(text(*edit), QString("a"));
    // A window of its own has nobody to pass the key to but the area.
    testedEditor alone(u"", u"a");
    QTest::keyClick(&alone, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(area.keys.count(Qt::Key_Z), 4);
}

void editor::otherKeysType() {
    testedEditor edit(u"");
    QTest::keyClicks(&edit, "a/b.c");
    QTest::keyClick(&edit, Qt::Key_G);
    QTest::keyClick(&edit, Qt::Key_S);
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(text(edit) != QString("a/b.cgs"));
    edit.textSet(u"");
    QTest::keyClicks(&edit, "fgopsz/.");
    QCOMPARE(text(edit), QString("fgopsz/."));
}

QTEST_MAIN(editor)
#include "editor.moc"
