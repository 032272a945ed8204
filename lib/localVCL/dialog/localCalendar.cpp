#include "localVCL/dialog/localCalendar.h"

#include <QCalendarWidget>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "localInterpretatorUTF8/text/localTrace.h"
#include "localVCL/text/localVclText.h"

namespace {
const QString format = QStringLiteral("yyyyMMdd");
}

localCalendar::localCalendar(const QDate& start, QWidget* parent)
    : QDialog(parent), calendar_(new QCalendarWidget(this)) {
    setWindowTitle(QStringLiteral("Выберите дату"));
    calendar_->setGridVisible(true);
    calendar_->setSelectedDate(start.isValid() ? start : QDate::currentDate());
    connect(calendar_, &QCalendarWidget::activated, this, &localCalendar::dateSelected);
    auto* const buttons = new QDialogButtonBox(this);
    QPushButton* const ok = buttons->addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole);
    ok->setDefault(true);
    buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &localCalendar::dateSelected);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(calendar_);
    layout->addWidget(buttons);
    calendar_->setFocus();
}

QString localCalendar::selectedDate() const {
    return calendar_->selectedDate().toString(format);
}

QDate localCalendar::dateOf(const QString& text) {
    return QDate::fromString(text, format);
}

void localCalendar::dateSelected() {
    traceLine(localVclText(selectedDate()), "dateSelected");
    accept();
}
