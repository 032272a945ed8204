// The calculator: buttons by mouse, keys, the stack of texts, the display.
#include <QApplication>
#include <QLCDNumber>
#include <QPushButton>
#include <QTest>

#include <clocale>

#include "localVCL/calculator/localCalc.h"
#include "screenshot.h"
#include "windowTest.h"

namespace {

// A calculator on the screen, with its buttons at hand.
class shownCalc : public localCalc {
public:
    shownCalc() { show(); }

    QPushButton* button(const QString& text) const {
        for (QPushButton* const each : findChildren<QPushButton*>()) {
            if (each->text() == text) {
                return each;
            }
        }
        return nullptr;
    }
    // Clicks buttons, their texts separated by blanks.
    void press(const QString& texts) {
        for (const QString& text : texts.split(u' ', Qt::SkipEmptyParts)) {
            QPushButton* const pressed = button(text);
            QVERIFY2(pressed != nullptr, qPrintable(text));
            QTest::mouseClick(pressed, Qt::LeftButton);
        }
    }
    QStringList texts() const { return {stack().begin(), stack().end()}; }
    double shown() const { return findChild<QLCDNumber*>()->value(); }
};

}  // namespace

class calculator : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { std::setlocale(LC_NUMERIC, "C"); }

    void hasEveryButtonOnce() {
        shownCalc calc;
        QStringList texts;
        for (QPushButton* const button : calc.findChildren<QPushButton*>()) {
            texts.append(button->text());
            QVERIFY2(button->width() >= 40 && button->height() >= 30, qPrintable(button->text()));
        }
        texts.sort();
        QStringList wanted =
            QStringLiteral("0 1 2 3 4 5 6 7 8 9 00 . + - * / = % 1/x +/- <- C CE M MC MR M+ M-")
                .split(u' ');
        wanted.sort();
        QCOMPARE(texts, wanted);
    }

    void computes_data() {
        QTest::addColumn<QString>("buttons");
        QTest::addColumn<double>("value");
        QTest::addColumn<QStringList>("stack");
        const auto row = [](const char* buttons, double value, const QStringList& stack) {
            QTest::newRow(buttons) << QString::fromUtf8(buttons) << value << stack;
        };
        row("", 0, {});
        row("1 2 3", 123, {});
        row("0 0 7", 7, {});
        row("5 00 0", 5000, {});
        row("00 7", 7, {});
        row("1 . 00 5", 1.005, {});
        row("1 . 0 5", 1.05, {});
        row(". 5", 0.5, {});
        row("1 . 2 . 3", 1.2, {});
        row("2 +", 0, {"2", "+"});
        row("2 + 3", 3, {"2", "+"});
        row("2 + 3 =", 5, {});
        row("7 - 9 =", -2, {});
        row("6 * 7 =", 42, {});
        row("1 / 8 =", 0.125, {});
        row("2 + 3 * 4 =", 20, {});
        row("2 + 3 *", 5, {"5", "*"});
        row("2 + 3 + =", 10, {});
        row("2 + =", 2, {});
        row("2 + 3 = 7", 7, {});
        row("2 + 3 = + 1 =", 6, {});
        row("1 CE", 0, {});
        row("1 . CE 5", 5, {});
        row("1 + 2 CE", 0, {});
        row("1 + 2 CE 3 + 4 =", 7, {});
        row("1 - 2 - 3 - 4 * 5 / 8 + 9 =", 4, {});
        row("7 - =", 7, {});
        row("2 * 3 = = 5 +", 0, {"0", "+"});
        // Numbers go onto the stack with 6 digits.
        row("1 / 3 +", 1.0 / 3, {"0.333333", "+"});
        row("1 2 3 4 5 6 7 + 1 =", 1234571, {});
    }
    void computes() {
        QFETCH(QString, buttons);
        QFETCH(double, value);
        QFETCH(QStringList, stack);
        shownCalc calc;
        calc.press(buttons);
        QCOMPARE(calc.value(), value);
        QCOMPARE(calc.shown(), value);
        QCOMPARE(calc.texts(), stack);
    }

    void equalsOnAnEmptyStackIsPushed() {
        shownCalc calc;
        calc.press("5 =");
        QCOMPARE(calc.texts(), QStringList({"5", "="}));
        QCOMPARE(calc.shown(), 0.0);
        // What stands there now is no operator of arithmetic.
        calc.press("3 +");
        QCOMPARE(calc.texts(), QStringList({"0", "+"}));
        calc.press("CE =");
        QCOMPARE(calc.texts(), QStringList({"0", "="}));
    }

    void buttonsWithoutAFunctionAreOperatorsThatGiveZero_data() {
        QTest::addColumn<QString>("text");
        for (const char* const text : {"%", "1/x", "+/-", "<-", "C", "M", "MC", "MR", "M+", "M-"}) {
            QTest::newRow(text) << QString::fromUtf8(text);
        }
    }
    void buttonsWithoutAFunctionAreOperatorsThatGiveZero() {
        QFETCH(QString, text);
        shownCalc calc;
        calc.press("4 " + text);
        QCOMPARE(calc.texts(), QStringList({"4", text}));
        calc.press("2 " + text);
        QCOMPARE(calc.texts(), QStringList({"0", text}));
        calc.press("CE 4 + 2 " + text);
        QCOMPARE(calc.texts(), QStringList({"6", text}));
    }

    void divisionByZeroIsShownAsError() {
        shownCalc calc;
        calc.press("1 / 0 =");
        QVERIFY(qIsInf(calc.value()));
        QCOMPARE(calc.shown(), 0.0);
        QVERIFY(saveScreenshot(calc, QStringLiteral("calculatorError")));
        // What is computed from it is no number either, and an empty display is none of it.
        calc.press("+ 1 =");
        QVERIFY(qIsInf(calc.value()));
        calc.press("- 3 * 0 =");
        QVERIFY(qIsNaN(calc.value()));
        QCOMPARE(calc.shown(), 0.0);
        calc.press("CE 1 + 1 =");
        QCOMPARE(calc.shown(), 2.0);
    }

    void computesByKeys() {
        shownCalc calc;
        const outputCapture output;
        QTest::keyClicks(&calc, "12.5*4-6/2=");
        QCOMPARE(calc.value(), 22.0);
        QCOMPARE(calc.shown(), 22.0);
        QTest::keyClick(&calc, Qt::Key_Delete);
        QCOMPARE(calc.shown(), 0.0);
        QTest::keyClicks(&calc, "1+2");
        QTest::keyClick(&calc, Qt::Key_Return);
        QCOMPARE(calc.shown(), 3.0);
        QTest::keyClicks(&calc, "+0347");
        QTest::keyClick(&calc, Qt::Key_Enter, Qt::KeypadModifier);
        QCOMPARE(calc.shown(), 350.0);
        QTest::keyClicks(&calc, "89");
        QTest::keyClick(&calc, Qt::Key_Backspace);
        QCOMPARE(calc.texts(), QStringList({"89", "<-"}));
    }

    void keysAreTraced() {
        shownCalc calc;
        const outputCapture output;
        QTest::keyClick(&calc, Qt::Key_7);
        const QStringList lines = output.text().split(u'\n');
        QCOMPARE(lines.size(), 4);
        QCOMPARE(lines[0], QString::number(Qt::Key_7));
        QVERIFY2(lines[1].startsWith("[clickButton()] = [7] func: "), qPrintable(lines[1]));
        QVERIFY2(lines[2].startsWith("[found ] = [7] func: "), qPrintable(lines[2]));
        QCOMPARE(lines[3], QString());
    }

    void everyKeyClicksItsButton_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("text");
        const auto row = [](int key, const char* text) {
            QTest::addRow("%x as %s", unsigned(key), text) << key << QString::fromLatin1(text);
        };
        for (int digit = 0; digit < 10; ++digit) {
            row(Qt::Key_0 + digit, QByteArray::number(digit).constData());
        }
        row(Qt::Key_Period, ".");
        row(Qt::Key_Plus, "+");
        row(Qt::Key_Minus, "-");
        row(Qt::Key_Asterisk, "*");
        row(Qt::Key_Slash, "/");
        row(Qt::Key_Equal, "=");
        row(Qt::Key_Enter, "=");
        row(Qt::Key_Return, "=");
        row(Qt::Key_Backspace, "<-");
        row(Qt::Key_Delete, "CE");
    }
    void everyKeyClicksItsButton() {
        QFETCH(int, key);
        QFETCH(QString, text);
        shownCalc calc;
        QStringList clicked;
        for (QPushButton* const button : calc.findChildren<QPushButton*>()) {
            connect(button, &QPushButton::clicked, &calc,
                    [&clicked, button] { clicked.append(button->text()); });
        }
        const outputCapture output;
        // As a keyboard of Russian letters sends them, and with the keys of the number block.
        QTest::keyClick(&calc, Qt::Key(key));
        QTest::keyClick(&calc, Qt::Key(key), Qt::KeypadModifier);
        QCOMPARE(clicked, QStringList({text, text}));
        QTest::keyClick(&calc, Qt::Key(key), Qt::ControlModifier | Qt::KeypadModifier);
        QCOMPARE(clicked.size(), 2);
    }

    void lettersOfTheRussianKeyboardClickNothing() {
        shownCalc calc;
        const outputCapture output;
        QTest::sendKeyEvent(QTest::Click, &calc, Qt::Key(0x42e), QString(QChar(0x44e)), {});
        QCOMPARE(output.text(), QString::number(0x42e) + '\n');
        QCOMPARE(calc.typed(), QString());
        QCOMPARE(calc.texts(), QStringList());
    }

    void keysWithCtrlAndOtherKeysDoNothing() {
        shownCalc calc;
        const outputCapture output;
        QTest::keyClick(&calc, Qt::Key_7, Qt::ControlModifier);
        QCOMPARE(output.text(), QString());
        QTest::keyClick(&calc, Qt::Key_F);
        QCOMPARE(output.text(), QString::number(Qt::Key_F) + '\n');
        QCOMPARE(calc.typed(), QString());
        QCOMPARE(calc.texts(), QStringList());
    }

    void keysReachItAfterAClick() {
        shownCalc calc;
        calc.activateWindow();
        calc.setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&calc));
        calc.press("4 2");
        const outputCapture output;
        QCOMPARE(QApplication::focusWidget(), &calc);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(calc.texts(), QStringList({"42", "="}));
    }

    void manyDigitsFitTheDisplay() {
        shownCalc calc;
        calc.press("1 2 3 4 5 6 7 8 9 0 1 2 3 . 5");
        QCOMPARE(calc.shown(), 1234567890123.5);
        QVERIFY(saveScreenshot(calc, QStringLiteral("calculator")));
        for (int i = 0; i < 400; ++i) {
            calc.button("9")->click();
        }
        QVERIFY(!calc.findChild<QLCDNumber*>()->checkOverflow(calc.shown()));
        calc.press("CE");
        for (int i = 0; i < 400; ++i) {
            calc.button("9")->click();
        }
        // So many nines are no number any more; the display says so.
        QVERIFY(qIsInf(calc.value()));
        QCOMPARE(calc.shown(), 0.0);
    }
};

QTEST_MAIN(calculator)
#include "calculator.moc"
