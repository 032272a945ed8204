// A person chooses a date.
#pragma once

#include <QDate>
#include <QDialog>

class QCalendarWidget;

// A dialog with a calendar. Enter, a double click on a day and the button OK accept, Esc rejects.
class localCalendar : public QDialog {
    Q_OBJECT

public:
    // Begins at a date; today when that is none.
    explicit localCalendar(const QDate& start, QWidget* parent = nullptr);

    // The selected date as "yyyyMMdd".
    QString selectedDate() const;

    // The date in such a text; an invalid date for any other text.
    static QDate dateOf(const QString& text);

public slots:
    // Writes a line with the date and accepts the dialog.
    void dateSelected();

private:
    QCalendarWidget* calendar_;
};
