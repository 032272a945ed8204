#include "grid/localVclGridLayoutDialog.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QVBoxLayout>

localVclGridLayoutDialog::localVclGridLayoutDialog(const QString& text, Take take, QWidget* parent)
    : QDialog(parent), edit_(new QPlainTextEdit(text)), take_(std::move(take)) {
    setWindowTitle(QStringLiteral("Grid Layout"));
    setModal(true);
    setFont(QApplication::font());
    edit_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    edit_->setLineWrapMode(QPlainTextEdit::NoWrap);
    auto* const buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &localVclGridLayoutDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(edit_);
    layout->addWidget(buttons);
    resize(720, 420);
    edit_->setFocus();
}

void localVclGridLayoutDialog::accept() {
    if (take_(edit_->toPlainText())) {
        QDialog::accept();
    }
}
