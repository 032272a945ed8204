#include "localVCL/dialog/localVclListDialog.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "dialog/localVclArrowCursor.h"
#include "localInterpretatorUTF8/text/localTrace.h"

localVclQStringListGetItemDialog::localVclQStringListGetItemDialog(const QString& title,
                                                                   const QStringList& lines,
                                                                   int& row, QWidget* parent)
    : QDialog(parent), list_(new QListWidget(this)), row_(row) {
    setModal(true);
    setWindowTitle(title);
    // Lines of equal height make long lists cheap.
    list_->setUniformItemSizes(true);
    list_->addItems(lines);
    list_->setCurrentRow(row >= 0 && row < list_->count() ? row : 0);
    auto* const buttons = new QDialogButtonBox(this);
    buttons->addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    // Not itemActivated: Enter reaches the default button as well and would accept twice.
    connect(list_, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(list_);
    layout->addWidget(buttons);
    const QSize room = screen()->availableSize();
    resize(room.width() / 2, room.height() * 3 / 10);
    list_->setFocus();
}

void localVclQStringListGetItemDialog::accept() {
    row_ = list_->currentRow();
    QDialog::accept();
    emit applied();
}

bool localVclQStringListGetItem(const QString& title, const QStringList& lines, int& row) {
    constexpr const char* functionName = "localVclQStringListGetItem";
    const localVclArrowCursor arrow;
    int chosen = row;
    localVclQStringListGetItemDialog dialog(title, lines, chosen, QApplication::activeWindow());
    switch (dialog.exec()) {
        case QDialog::Accepted:
            traceLine(u"Accepted", functionName);
            row = chosen;
            return true;
        case QDialog::Rejected:
            traceLine(u"Rejected", functionName);
            return false;
        default:
            traceLine(u"Unexpected", functionName);
            return false;
    }
}
