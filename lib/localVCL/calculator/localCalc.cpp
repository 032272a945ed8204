#include "localVCL/calculator/localCalc.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLCDNumber>
#include <QPushButton>

#include <algorithm>
#include <cmath>

#include "localInterpretatorUTF8/text/localNumberText.h"
#include "localInterpretatorUTF8/text/localTrace.h"
#include "localVCL/text/localVclText.h"

namespace {

constexpr int digitsShown = 16;
constexpr int displayHeight = 56;    // pixels
constexpr QSize buttonSize{48, 36};  // pixels
constexpr int precision = 6;         // digits of a number on the stack

const QString clearEntry = QStringLiteral("CE");
const QString point = QStringLiteral(".");
const QString equals = QStringLiteral("=");

double numberOf(const QString& text) {
    return numberFromText(localVclText(text));
}

QString stackText(double number) {
    return QString::number(number, 'g', precision);
}

// "1/x" holds a digit, but is no part of a number.
bool isDigits(const QString& text) {
    return std::all_of(text.begin(), text.end(),
                       [](QChar letter) { return letter >= u'0' && letter <= u'9'; });
}

// A button that is no operator of arithmetic gives 0, "=" among them.
double computed(double a, const QString& operation, double b) {
    if (operation == u"+") {
        return a + b;
    }
    if (operation == u"-") {
        return a - b;
    }
    if (operation == u"*") {
        return a * b;
    }
    return operation == u"/" ? a / b : 0;
}

// Empty for a key without a button.
QString buttonOfKey(int key) {
    if (key >= Qt::Key_0 && key <= Qt::Key_9) {
        return QString(QChar(u'0' + key - Qt::Key_0));
    }
    switch (key) {
        case Qt::Key_Period:
            return point;
        case Qt::Key_Plus:
            return QStringLiteral("+");
        case Qt::Key_Minus:
            return QStringLiteral("-");
        case Qt::Key_Asterisk:
            return QStringLiteral("*");
        case Qt::Key_Slash:
            return QStringLiteral("/");
        case Qt::Key_Equal:
        case Qt::Key_Enter:
        case Qt::Key_Return:
            return equals;
        case Qt::Key_Backspace:
            return QStringLiteral("<-");
        case Qt::Key_Delete:
            return clearEntry;
        default:
            return {};
    }
}

}  // namespace

localCalc::localCalc(QWidget* parent)
    : QFrame(parent), display_(new QLCDNumber(digitsShown, this)) {
    display_->setObjectName(QStringLiteral("display"));
    display_->setSegmentStyle(QLCDNumber::Flat);
    display_->setSmallDecimalPoint(true);
    display_->setMinimumHeight(displayHeight);
    auto* const grid = new QGridLayout(this);
    const QStringList rows[] = {
        {"MC", "MR", "M", "M+", "M-"}, {"CE", "C", "<-", "%", "1/x"}, {"7", "8", "9", "/", "+/-"},
        {"4", "5", "6", "*"},          {"1", "2", "3", "-"},          {"0", "00", ".", "+"},
    };
    int row = 0;
    grid->addWidget(display_, row, 0, 1, 5);
    for (const QStringList& texts : rows) {
        ++row;
        for (int column = 0; column < texts.size(); ++column) {
            addButton(*grid, texts[column], row, column);
        }
    }
    addButton(*grid, equals, row - 2, 4, 3);
    setFrameShape(QFrame::StyledPanel);
    setFocusPolicy(Qt::StrongFocus);
    showEmpty();
}

void localCalc::addButton(QGridLayout& grid, const QString& text, int row, int column,
                          int rowSpan) {
    auto* const button = new QPushButton(text, this);
    button->setMinimumSize(buttonSize);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    // The keys stay with the calculator.
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QPushButton::clicked, this, &localCalc::slotButtonClicked);
    grid.addWidget(button, row, column, rowSpan, 1);
}

double localCalc::value() const {
    return typed_.isEmpty() ? shown_ : numberOf(typed_);
}

void localCalc::showTyped(const QString& text) {
    typed_ = text;
    if (text.endsWith(point)) {
        display_->display(text);
    } else {
        displayNumber(numberOf(text));
    }
}

void localCalc::showNumber(double number) {
    typed_.clear();
    shown_ = number;
    displayNumber(number);
}

void localCalc::displayNumber(double number) {
    // The display has no segments for the text of infinity.
    if (std::isfinite(number)) {
        display_->display(number);
    } else {
        display_->display(QStringLiteral("Error"));
    }
}

void localCalc::showEmpty() {
    typed_.clear();
    shown_ = 0;
    display_->display(QString());
}

void localCalc::slotButtonClicked() {
    const auto* const button = qobject_cast<QAbstractButton*>(sender());
    if (button == nullptr) {
        return;
    }
    const QString text = button->text();
    if (text == clearEntry) {
        stack_.clear();
        showEmpty();
    } else if (isDigits(text) || text == point) {
        showTyped(typed_ + text);
    } else {
        operatorClicked(text);
    }
}

// "%", "1/x", "+/-", "<-", "C" and the memory buttons have no function of their own and come here
// as well. Meant.
void localCalc::operatorClicked(const QString& operation) {
    if (stack_.size() < 2) {
        stack_.push_back(stackText(value()));
        stack_.push_back(operation);
        showEmpty();
        return;
    }
    stack_.push_back(stackText(value()));
    const double result = computed(numberOf(stack_[0]), stack_[1], numberOf(stack_[2]));
    stack_.clear();
    showNumber(result);
    if (operation != equals) {
        stack_.push_back(stackText(result));
        stack_.push_back(operation);
    }
}

void localCalc::clickButton(const QString& text) {
    constexpr const char* functionName = "clickButton";
    traceLine(localVclText(QStringLiteral("[clickButton()] = [") + text + u']'), functionName);
    for (QPushButton* const button : findChildren<QPushButton*>()) {
        if (button->text() == text) {
            traceLine(localVclText(QStringLiteral("[found ] = [") + text + u']'), functionName);
            button->click();
            return;
        }
    }
}

void localCalc::keyPressEvent(QKeyEvent* event) {
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        event->ignore();
        return;
    }
    writeLine(numberToString(event->key()));
    const QString text = buttonOfKey(event->key());
    if (text.isEmpty()) {
        QFrame::keyPressEvent(event);
    } else {
        clickButton(text);
    }
}
