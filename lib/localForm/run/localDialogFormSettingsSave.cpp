#include "run/localDialogFormSettingsSave.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

localDialogFormSettingsSave::localDialogFormSettingsSave(QWidget* parent) : QDialog(parent) {
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(QStringLiteral("Это диалог сохранения настроек")));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    layout->addWidget(buttons);
}
