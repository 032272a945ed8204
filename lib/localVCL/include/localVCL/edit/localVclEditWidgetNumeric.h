// A field for a number of a fixed length with a fixed number of decimals.
//
// The number stands at the right edge of `length` characters, blanks in front. Between typing and
// leaving the field the text may be anything made of digits, points, signs and blanks; Return and
// leaving bring it into that shape again.
#pragma once

#include <QLineEdit>

#include <cstdint>

class localVclEditWidgetNumeric : public QLineEdit {
    Q_OBJECT

public:
    // `length` counts all characters, `decimals` those behind the point, below 0 being 0. A length
    // too small for a digit, a sign (when signed), the point and the decimals grows to hold them.
    // `text` that is no number counts as 0.
    localVclEditWidgetNumeric(std::int32_t length, std::int32_t decimals, bool isSigned,
                              const QString& text, QWidget* parent = nullptr);

    std::int32_t length() const { return len; }
    std::int32_t decimals() const { return dec; }

    // Shows the number that a text holds; its rightmost characters when it is too long.
    void numberShow(const QString& text);
    // The number in the field as it stands; what is no number is 0.
    double number() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    // The text without blanks, what stands before its point justified to the field's point.
    QString aligned(const QString& text) const;
    // Where the field's point stands, or would stand behind the last digit.
    std::int32_t pointPlace() const { return dec > 0 ? len - dec - 1 : len; }
    void normalise();
    void periodPressed();
    void heightByFont();

    std::int32_t len;
    std::int32_t dec;
};
