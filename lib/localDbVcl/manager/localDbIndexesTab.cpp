#include "manager/localDbIndexesTab.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

#include "localVCL/text/localVclText.h"
#include "manager/localDbManagerLook.h"
#include "manager/localDbNewIndexDialog.h"

namespace {

enum Column { name, key, declaredBy, columnsCount };
constexpr int nameWidth = 200;  // pixels

QString joined(const std::vector<std::u16string>& names) {
    QStringList texts;
    for (const std::u16string& each : names) {
        texts.append(localVclQString(each));
    }
    return texts.join(QStringLiteral(", "));
}

}  // namespace

localDbIndexesTab::localDbIndexesTab(std::u16string_view connection, const localDbObject& object,
                                     std::vector<std::u16string> columns, bool canChange,
                                     QWidget* parent)
    : QWidget(parent),
      connection_(connection),
      table_(object.name),
      columns_(std::move(columns)),
      canChange_(canChange),
      list_(new QTableWidget) {
    list_->setColumnCount(columnsCount);
    list_->setHorizontalHeaderLabels(
        {QStringLiteral("Name"), QStringLiteral("Key"), QStringLiteral("Made by")});
    localDbManagerLook(*list_);
    list_->setColumnWidth(name, nameWidth);
    list_->setColumnWidth(key, nameWidth);
    auto* const buttons = new QHBoxLayout;
    const auto button = [&](const QString& text, auto slot) {
        auto* const made = new QPushButton(text);
        made->setVisible(canChange);
        connect(made, &QPushButton::clicked, this, slot);
        buttons->addWidget(made);
        return made;
    };
    button(QStringLiteral("&Create..."), [this] { create(); });
    drop_ = button(QStringLiteral("&Drop"), [this] { drop(); });
    auto* const note = new QLabel(QStringLiteral("Both take effect at once."));
    note->setForegroundRole(QPalette::PlaceholderText);
    note->setVisible(canChange);
    buttons->addWidget(note);
    buttons->addStretch();
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(list_);
    layout->addLayout(buttons);
    connect(list_, &QTableWidget::currentCellChanged, this, [this] { buttonsShow(); });
    setFocusProxy(list_);
    rowsShow();
}

void localDbIndexesTab::rowsShow() {
    std::vector<localDbObject> objects;
    localDb::dbObjectsGet(connection_, objects);
    const int before = std::max(0, list_->currentRow());
    list_->setRowCount(0);
    for (const localDbObject& object : objects) {
        if (object.type != u"index" || object.table != table_) {
            continue;
        }
        const int row = list_->rowCount();
        list_->insertRow(row);
        const auto put = [&](int column, const QString& text) {
            list_->setItem(row, column, new QTableWidgetItem(text));
        };
        put(name, localVclQString(object.name));
        put(key, joined(localDb::idxKeyFieldNamesGet(connection_, localDb::nameWord(object.name))));
        put(declaredBy, object.sql.empty() ? QStringLiteral("the table") : QString());
    }
    list_->setCurrentCell(std::min(before, list_->rowCount() - 1), name);
    buttonsShow();
}

void localDbIndexesTab::create() {
    QStringList columns;
    for (const std::u16string& column : columns_) {
        columns.append(localVclQString(column));
    }
    localDbNewIndexDialog dialog(localVclQString(table_), columns, this);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    std::vector<std::u16string> words;
    for (const QString& column : dialog.key()) {
        words.push_back(localDb::nameWord(localVclText(column)));
    }
    const QString index = dialog.name();
    if (localDb::idxCreate(
            connection_, localDb::nameWord(table_), localDb::nameWord(localVclText(index)), words,
            dialog.isUnique() ? localDbObject::Keys::unique : localDbObject::Keys::any)) {
        rowsShow();
        const auto made = list_->findItems(index, Qt::MatchFixedString);
        list_->setCurrentItem(made.isEmpty() ? nullptr : made.first());
    }
}

void localDbIndexesTab::drop() {
    const QString index = list_->item(list_->currentRow(), name)->text();
    if (localDb::idxDeleteAfterAnswer(connection_, localDb::nameWord(localVclText(index)))) {
        rowsShow();
    }
}

void localDbIndexesTab::buttonsShow() {
    const int row = list_->currentRow();
    drop_->setEnabled(row >= 0 && list_->item(row, declaredBy) != nullptr &&
                      list_->item(row, declaredBy)->text().isEmpty());
}
