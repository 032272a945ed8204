#include "manager/localDbNewIndexDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

localDbNewIndexDialog::localDbNewIndexDialog(const QString& table, const QStringList& columns,
                                             QWidget* parent)
    : QDialog(parent),
      table_(table),
      name_(new QLineEdit),
      columns_(new QListWidget),
      keyLine_(new QLabel),
      unique_(new QCheckBox(QStringLiteral("No two records of one &key"))) {
    setWindowTitle(QStringLiteral("New index of ") + table);
    for (const QString& column : columns) {
        auto* const item = new QListWidgetItem(column, columns_);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
    columns_->setCurrentRow(0);
    columns_->setAlternatingRowColors(true);
    keyLine_->setWordWrap(true);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    ok_ = buttons->button(QDialogButtonBox::Ok);
    auto* const form = new QFormLayout(this);
    form->addRow(QStringLiteral("Co&lumns"), columns_);
    form->addRow(QStringLiteral("Key"), keyLine_);
    form->addRow(QStringLiteral("&Name"), name_);
    form->addRow(QString(), unique_);
    form->addRow(buttons);
    connect(columns_, &QListWidget::itemChanged, this, &localDbNewIndexDialog::ticked);
    connect(name_, &QLineEdit::textChanged, this, &localDbNewIndexDialog::stateShow);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    stateShow();
    columns_->setFocus();
}

QString localDbNewIndexDialog::name() const {
    return name_->text().trimmed();
}

bool localDbNewIndexDialog::isUnique() const {
    return unique_->isChecked();
}

void localDbNewIndexDialog::ticked(const QListWidgetItem* item) {
    key_.removeAll(item->text());
    if (item->checkState() == Qt::Checked) {
        key_.append(item->text());
    }
    // A name that the person has not touched follows the key.
    if (!name_->isModified()) {
        name_->setText(key_.isEmpty()
                           ? QString()
                           : table_ + QLatin1Char('_') + key_.join(QLatin1Char('_')).toUpper());
    }
    stateShow();
}

void localDbNewIndexDialog::stateShow() {
    keyLine_->setText(key_.isEmpty() ? QStringLiteral("tick the columns in their order")
                                     : key_.join(QStringLiteral(", ")));
    ok_->setEnabled(!key_.isEmpty() && !name().isEmpty());
}
