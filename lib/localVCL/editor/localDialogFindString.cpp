#include "localVCL/editor/localDialogFindString.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

localDialogFindString::localDialogFindString(const std::vector<std::u16string>& history,
                                             QTextDocument::FindFlags flags, QWidget* parent)
    : QDialog(parent),
      text_(new QComboBox),
      caseSensitive_(new QCheckBox(QStringLiteral("Учитывать регистр"))),
      forward_(new QRadioButton(QStringLiteral("Вперёд"))),
      backward_(new QRadioButton(QStringLiteral("Назад"))) {
    setWindowTitle(QStringLiteral("Поиск"));

    text_->setEditable(true);
    text_->setInsertPolicy(QComboBox::NoInsert);
    text_->setMinimumContentsLength(40);
    // A completion would put a past search in the place of a shorter text that is meant.
    text_->setCompleter(nullptr);
    for (auto past = history.rbegin(); past != history.rend(); ++past) {
        text_->addItem(QString::fromStdU16String(*past));
    }
    text_->lineEdit()->selectAll();

    caseSensitive_->setChecked(flags.testFlag(QTextDocument::FindCaseSensitively));
    (flags.testFlag(QTextDocument::FindBackward) ? backward_ : forward_)->setChecked(true);

    auto* direction = new QGroupBox(QStringLiteral("Направление"));
    auto* directionLayout = new QHBoxLayout(direction);
    directionLayout->addWidget(forward_);
    directionLayout->addWidget(backward_);
    directionLayout->addStretch();

    auto* buttons = new QDialogButtonBox;
    QPushButton* find = buttons->addButton(QStringLiteral("Искать"), QDialogButtonBox::AcceptRole);
    find->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text_);
    layout->addWidget(caseSensitive_);
    layout->addWidget(direction);
    layout->addWidget(buttons);
    text_->setFocus();
}

QString localDialogFindString::text() const {
    return text_->currentText();
}

QTextDocument::FindFlags localDialogFindString::flags() const {
    QTextDocument::FindFlags flags;
    flags.setFlag(QTextDocument::FindCaseSensitively, caseSensitive_->isChecked());
    flags.setFlag(QTextDocument::FindBackward, backward_->isChecked());
    return flags;
}
