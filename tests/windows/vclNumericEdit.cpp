// The edit field for numbers.
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

#include <memory>

#include "localVCL/edit/localVclEditWidgetNumeric.h"
#include "localVCL/font/localVclFont.h"
#include "screenshot.h"
#include "windowTest.h"

namespace {

// A field of 12 characters with 3 decimals and another field to go to.
struct window : QWidget {
    explicit window(const QString& text, int length = 12, int decimals = 3)
        : numeric(new localVclEditWidgetNumeric(length, decimals, true, text, this)),
          next(new QLineEdit(this)) {
        auto* const layout = new QVBoxLayout(this);
        layout->addWidget(numeric);
        layout->addWidget(next);
        setFont(localVclFont(1));
        show();
        activateWindow();
        numeric->setFocus();
    }

    localVclEditWidgetNumeric* numeric;
    QLineEdit* next;
};

}  // namespace

class vclNumericEdit : public QObject {
    Q_OBJECT

private slots:
    void lengthHoldsWhatItMust_data() {
        QTest::addColumn<int>("length");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<bool>("isSigned");
        QTest::addColumn<int>("realLength");
        QTest::addColumn<int>("realDecimals");
        QTest::newRow("as given") << 12 << 3 << true << 12 << 3;
        QTest::newRow("no length, no sign") << 0 << 0 << false << 1 << 0;
        QTest::newRow("no length, sign") << 0 << 0 << true << 2 << 0;
        QTest::newRow("negative length") << -5 << 0 << true << 2 << 0;
        QTest::newRow("negative decimals") << 5 << -2 << false << 5 << 0;
        QTest::newRow("decimals, no sign") << 1 << 2 << false << 4 << 2;
        QTest::newRow("decimals, sign") << 1 << 2 << true << 5 << 2;
        QTest::newRow("just enough") << 5 << 2 << true << 5 << 2;
    }
    void lengthHoldsWhatItMust() {
        QFETCH(int, length);
        QFETCH(int, decimals);
        QFETCH(bool, isSigned);
        const localVclEditWidgetNumeric edit(length, decimals, isSigned, {});
        QTEST(edit.length(), "realLength");
        QTEST(edit.decimals(), "realDecimals");
        QCOMPARE(edit.text().size(), edit.length());
    }

    void showsANumberAtItsRightEdge_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("length");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("shown");
        QTest::newRow("whole") << "12" << 8 << 2 << "   12.00";
        QTest::newRow("negative") << "-1.5" << 8 << 2 << "   -1.50";
        QTest::newRow("rounded") << "1.999" << 8 << 2 << "    2.00";
        QTest::newRow("no decimals") << "7.9" << 4 << 0 << "   8";
        QTest::newRow("empty") << "" << 6 << 1 << "   0.0";
        QTest::newRow("no number") << "пять" << 6 << 1 << "   0.0";
        QTest::newRow("two points") << "1.2.3" << 6 << 1 << "   0.0";
        QTest::newRow("not a number") << "nan" << 6 << 1 << "   0.0";
        QTest::newRow("infinite") << "inf" << 6 << 1 << "   0.0";
        QTest::newRow("blanks inside") << "1 2 .5" << 6 << 1 << "  12.5";
        QTest::newRow("too long keeps the right end") << "123456.7" << 6 << 1 << "3456.7";
    }
    void showsANumberAtItsRightEdge() {
        QFETCH(QString, text);
        QFETCH(int, length);
        QFETCH(int, decimals);
        const localVclEditWidgetNumeric edit(length, decimals, true, text);
        QTEST(edit.text(), "shown");
    }

    void isFramelessAndAsHighAsItsFont() {
        localVclEditWidgetNumeric edit(12, 3, true, {});
        QVERIFY(!edit.hasFrame());
        QCOMPARE(edit.height(), edit.fontMetrics().height());
        QFont larger = edit.font();
        larger.setPointSize(larger.pointSize() * 2);
        edit.setFont(larger);
        QCOMPARE(edit.height(), QFontMetrics(larger).height());
    }

    void pointMovesTheDigitsTypedBeforeIt() {
        window shown(QStringLiteral("0"));
        const outputCapture output;
        shown.numeric->setCursorPosition(0);
        QTest::keyClicks(shown.numeric, QStringLiteral("45."));
        QCOMPARE(shown.numeric->text(), QStringLiteral("      45.000"));
        QCOMPARE(shown.numeric->cursorPosition(), 9);
        const QStringList traces = output.text().split(u'\n');
        QCOMPARE(traces.size(), 5);
        QVERIFY(traces[0].startsWith(QStringLiteral("Key_Period pressed. Current text:[45")));
        QVERIFY(traces[1].startsWith(QStringLiteral("this->cursorPosition()=2 ")));
        QVERIFY(traces[2].startsWith(QStringLiteral("this->len-this->dec-1=8 ")));
        QVERIFY(traces[3].startsWith(QStringLiteral("this->dec=3 ")));
        QTest::keyClicks(shown.numeric, QStringLiteral("6"));
        QVERIFY(saveScreenshot(shown, QStringLiteral("vclNumericEdit")));
    }

    void whatIsTypedOverAnOldNumberIsWhatStandsThere_data() {
        QTest::addColumn<QString>("old");
        QTest::addColumn<int>("place");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        const int home = 0;
        QTest::newRow("decimals that would round up") << "0.99" << home << "7.99"
                                                      << "  7.99";
        QTest::newRow("other decimals") << "0.60" << home << "5.75"
                                        << "  5.75";
        QTest::newRow("fewer decimals") << "0.99" << home << "7.5"
                                        << "  7.50";
        QTest::newRow("no decimals") << "1.99" << home << "7."
                                     << "  7.00";
        QTest::newRow("as many digits as there is room for") << "0.99" << home << "123.45"
                                                             << "123.45";
        QTest::newRow("before the old digit") << "0.99" << 2 << "7.25"
                                              << "  7.25";
        QTest::newRow("a minus") << "0.99" << home << "-7.25"
                                 << " -7.25";
    }
    void whatIsTypedOverAnOldNumberIsWhatStandsThere() {
        QFETCH(QString, old);
        QFETCH(int, place);
        QFETCH(QString, typed);
        window shown(old, 6, 2);
        const outputCapture output;
        QVERIFY(QTest::qWaitForWindowActive(&shown));
        QTest::keyClick(shown.numeric, Qt::Key_Home);
        for (int i = 0; i < place; ++i) {
            QTest::keyClick(shown.numeric, Qt::Key_Right);
        }
        QTest::keyClicks(shown.numeric, typed);
        QTest::keyClick(shown.numeric, Qt::Key_Return);
        QTEST(shown.numeric->text(), "shown");
    }

    void pointTakesTheOldDecimalsAway() {
        window shown(QStringLiteral("1234.5"));
        const outputCapture output;
        shown.numeric->setCursorPosition(6);
        QCOMPARE(shown.numeric->text(), QStringLiteral("    1234.500"));
        QTest::keyClick(shown.numeric, Qt::Key_Period);
        QCOMPARE(shown.numeric->text(), QStringLiteral("      12.000"));
        QCOMPARE(shown.numeric->cursorPosition(), 9);
    }

    void pointOnASelectionBeginsAtTheLeft() {
        window shown(QStringLiteral("1234.5"));
        const outputCapture output;
        shown.numeric->selectAll();
        QTest::keyClick(shown.numeric, Qt::Key_Period);
        QCOMPARE(shown.numeric->text(), QStringLiteral("       0.000"));
        QCOMPARE(shown.numeric->cursorPosition(), 9);
        QVERIFY(!shown.numeric->hasSelectedText());
    }

    void pointAtOrBehindThePointDoesNothing_data() {
        QTest::addColumn<int>("place");
        QTest::newRow("at the point") << 8;
        QTest::newRow("behind it") << 9;
        QTest::newRow("at the end") << 12;
    }
    void pointAtOrBehindThePointDoesNothing() {
        QFETCH(int, place);
        window shown(QStringLiteral("1234.5"));
        const outputCapture output;
        shown.numeric->setCursorPosition(place);
        QTest::keyClick(shown.numeric, Qt::Key_Period);
        QCOMPARE(shown.numeric->text(), QStringLiteral("    1234.500"));
        QCOMPARE(shown.numeric->cursorPosition(), place);
    }

    void pointWithoutDecimalsIsAnOrdinaryKey() {
        window shown(QStringLiteral("7"), 5, 0);
        const outputCapture output;
        shown.numeric->setCursorPosition(5);
        QTest::keyClick(shown.numeric, Qt::Key_Period);
        QCOMPARE(shown.numeric->text(), QStringLiteral("    7."));
        QVERIFY(output.text().isEmpty());
    }

    void endGoesToTheEnd() {
        window shown(QStringLiteral("1234.5"));
        shown.numeric->setCursorPosition(3);
        QTest::keyClick(shown.numeric, Qt::Key_End);
        QCOMPARE(shown.numeric->cursorPosition(), 12);
        QVERIFY(!shown.numeric->hasSelectedText());
        shown.numeric->setCursorPosition(3);
        QTest::keyClick(shown.numeric, Qt::Key_End, Qt::ShiftModifier);
        QCOMPARE(shown.numeric->selectedText(), shown.numeric->text());
    }

    void returnFinishesAndMovesOn_data() {
        QTest::addColumn<int>("key");
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Enter") << int(Qt::Key_Enter);
    }
    void returnFinishesAndMovesOn() {
        QFETCH(int, key);
        window shown(QStringLiteral("0"));
        QVERIFY(QTest::qWaitForWindowActive(&shown));
        QVERIFY(shown.numeric->hasFocus());
        double atFinish = -1;
        connect(shown.numeric, &QLineEdit::editingFinished, this,
                [&] { atFinish = shown.numeric->number(); });
        shown.numeric->setCursorPosition(0);
        QTest::keyClicks(shown.numeric, QStringLiteral("5"));
        QTest::keyClick(shown.numeric, Qt::Key(key));
        QCOMPARE(atFinish, 50.0);
        QVERIFY(shown.next->hasFocus());
        QCOMPARE(shown.numeric->text(), QStringLiteral("      50.000"));
    }

    void leavingTheFieldShapesTheText_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::newRow("nothing") << ""
                                 << "       0.000";
        QTest::newRow("a number") << "3.14159"
                                  << "       3.142";
        QTest::newRow("letters") << "abc"
                                 << "       0.000";
        QTest::newRow("a minus in front of blanks") << "-   2"
                                                    << "      -2.000";
    }
    void leavingTheFieldShapesTheText() {
        QFETCH(QString, typed);
        window shown(QStringLiteral("1"));
        QVERIFY(QTest::qWaitForWindowActive(&shown));
        shown.numeric->setText(typed);
        shown.next->setFocus();
        QTEST(shown.numeric->text(), "shown");
    }

    void numbersDoNotDependOnTheLocale() {
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::Russian, QLocale::Russia));
        const localVclEditWidgetNumeric edit(8, 2, true, QStringLiteral("1.5"));
        QCOMPARE(edit.text(), QStringLiteral("    1.50"));
        QLocale::setDefault(before);
    }
};

QTEST_MAIN(vclNumericEdit)
#include "vclNumericEdit.moc"
