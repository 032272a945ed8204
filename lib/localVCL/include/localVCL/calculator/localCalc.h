// A pocket calculator.
//
// It computes from left to right with a stack of texts: at most a number, an operator and a second
// number stand on it. Numbers go onto the stack with 6 digits, so later steps compute with those.
//
// The display has a text as long as a number is being typed; a result is shown as a number and has
// none, so that the next digit begins a new number.
#pragma once

#include <QFrame>
#include <QString>

#include <vector>

class QAbstractButton;
class QLCDNumber;

class localCalc : public QFrame {
    Q_OBJECT

public:
    explicit localCalc(QWidget* parent = nullptr);

    // The number in the display; an empty display is 0.
    double value() const;
    // What is being typed; empty behind an operator and for a result.
    const QString& typed() const { return typed_; }
    const std::vector<QString>& stack() const { return stack_; }

public slots:
    // Acts on the text of the button that sent the signal: CE, digits, the point; all others are
    // operators.
    void slotButtonClicked();

protected:
    // Clicks the key's button. Keys without one, and all with Ctrl, are left to the surroundings.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void addButton(class QGridLayout& grid, const QString& text, int row, int column,
                   int rowSpan = 1);
    void clickButton(const QString& text);
    void operatorClicked(const QString& operation);
    void showTyped(const QString& text);
    void showNumber(double number);
    void displayNumber(double number);
    void showEmpty();

    QLCDNumber* display_;
    QString typed_;
    double shown_ = 0;  // the number in the display when nothing is being typed
    std::vector<QString> stack_;
};
