#include "localVCL/edit/localVclEditWidgetNumeric.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QRegularExpressionValidator>

#include <algorithm>
#include <cmath>

#include "localInterpretatorUTF8/text/localTrace.h"
#include "localVCL/text/localVclText.h"

namespace {

double numberOf(const QString& text) {
    const double number = text.toDouble();
    return std::isfinite(number) ? number : 0.0;
}

std::int32_t smallestLength(std::int32_t decimals, bool isSigned) {
    return (isSigned ? 2 : 1) + (decimals > 0 ? decimals + 1 : 0);
}

}  // namespace

localVclEditWidgetNumeric::localVclEditWidgetNumeric(std::int32_t length, std::int32_t decimals,
                                                     bool isSigned, const QString& text,
                                                     QWidget* parent)
    : QLineEdit(parent),
      len(std::max(length, smallestLength(std::max(decimals, 0), isSigned))),
      dec(std::max(decimals, 0)) {
    setFrame(false);
    // Nothing else is taken, neither typed nor pasted.
    static const QRegularExpression signsOfNumbers(QStringLiteral("[0-9 .+-]*"));
    setValidator(new QRegularExpressionValidator(signsOfNumbers, this));
    // In a proportional font blanks alone would not bring the digits to the edge.
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    heightByFont();
    numberShow(aligned(text));
}

void localVclEditWidgetNumeric::numberShow(const QString& text) {
    const QString digits = QString::number(numberOf(text), 'f', dec);
    setText((QString(len, u' ') + digits).right(len));
}

double localVclEditWidgetNumeric::number() const {
    return numberOf(text());
}

QString localVclEditWidgetNumeric::aligned(const QString& text) const {
    const qsizetype point = text.indexOf(u'.');
    QString whole = point < 0 ? text : text.left(point);
    whole.remove(u' ');
    return whole.rightJustified(pointPlace()) + (point < 0 ? QString() : text.mid(point));
}

void localVclEditWidgetNumeric::normalise() {
    numberShow(aligned(text()));
}

// Typing goes in at the left of the old number: the digits before the cursor become the whole part,
// and all that is old goes, or what is typed next would stand before old decimals.
void localVclEditWidgetNumeric::periodPressed() {
    constexpr const char* functionName = "keyPressEvent";
    const auto numberText = [](int number) { return QString::number(number); };
    const QString traces[] = {
        QStringLiteral("Key_Period pressed. Current text:[") + text() + u']',
        QStringLiteral("this->cursorPosition()=") + numberText(cursorPosition()),
        QStringLiteral("this->len-this->dec-1=") + numberText(len - dec - 1),
        QStringLiteral("this->dec=") + numberText(dec),
    };
    for (const QString& trace : traces) {
        traceLine(localVclText(trace), functionName);
    }
    if (hasSelectedText()) {
        setCursorPosition(0);
    }
    // What was typed in front has moved the old number, and its point, to the right.
    const qsizetype moved = std::max<qsizetype>(text().size() - len, 0);
    if (cursorPosition() >= pointPlace() + moved) {
        return;
    }
    numberShow(aligned(text().left(cursorPosition())));
    setCursorPosition(len - dec);
}

void localVclEditWidgetNumeric::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_End:
            setCursorPosition(len);
            if (event->modifiers().testFlag(Qt::ShiftModifier)) {
                selectAll();
            }
            return;
        case Qt::Key_Return:
        case Qt::Key_Enter: {
            normalise();
            emit editingFinished();
            QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
            QCoreApplication::sendEvent(this, &tab);
            return;
        }
        case Qt::Key_Period:
            if (dec > 0) {
                periodPressed();
                return;
            }
            break;
        default:
            break;
    }
    QLineEdit::keyPressEvent(event);
}

void localVclEditWidgetNumeric::focusOutEvent(QFocusEvent* event) {
    normalise();
    QLineEdit::focusOutEvent(event);
}

void localVclEditWidgetNumeric::changeEvent(QEvent* event) {
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        heightByFont();
    }
}

void localVclEditWidgetNumeric::heightByFont() {
    setFixedHeight(fontMetrics().height());
}
