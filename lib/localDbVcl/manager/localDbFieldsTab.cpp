#include "manager/localDbFieldsTab.h"

#include <QComboBox>
#include <QHeaderView>
#include <QPushButton>
#include <QSpinBox>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>

#include "localVCL/text/localVclText.h"
#include "manager/localDbManagerLook.h"

namespace {

constexpr int longestField = 9999;
constexpr int nameWidth = 220;  // pixels
constexpr const char* types[] = {"CHAR", "INT", "NUMERIC"};

// The type of a field. Scrolling over the list changes no type.
class TypeBox final : public QComboBox {
public:
    explicit TypeBox(const QString& type) {
        for (const char* const offered : types) {
            addItem(QLatin1String(offered));
        }
        // A type of the file that is not among them stays as long as the person lets it.
        if (!type.isEmpty() && findText(type) < 0) {
            insertItem(0, type);
        }
        setCurrentIndex(findText(type));
        setPlaceholderText(QStringLiteral("choose"));
        setFrame(false);
        setFocusPolicy(Qt::StrongFocus);
    }

protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

// Lengths and decimals are no less than 0.
class NumberDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                          const QModelIndex&) const override {
        auto* const box = new QSpinBox(parent);
        box->setRange(0, longestField);
        box->setFrame(false);
        return box;
    }
};

QTableWidgetItem* numberItem(int number) {
    auto* const item = new QTableWidgetItem;
    item->setData(Qt::EditRole, number);
    item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return item;
}

}  // namespace

localDbFieldsTab::localDbFieldsTab(const localDb::Fields& fields, bool canChange, QWidget* parent)
    : QWidget(parent), canChange_(canChange), table_(new QTableWidget) {
    table_->setColumnCount(columnsCount);
    table_->setHorizontalHeaderLabels({QStringLiteral("Name"), QStringLiteral("Type"),
                                       QStringLiteral("Length"), QStringLiteral("Decimals")});
    localDbManagerLook(*table_);
    if (canChange) {
        table_->setEditTriggers(QAbstractItemView::DoubleClicked |
                                QAbstractItemView::EditKeyPressed |
                                QAbstractItemView::AnyKeyPressed);
    }
    table_->setItemDelegateForColumn(length, new NumberDelegate(table_));
    table_->setItemDelegateForColumn(decimals, new NumberDelegate(table_));
    table_->verticalHeader()->setDefaultSectionSize(QComboBox().sizeHint().height());
    table_->setColumnWidth(name, nameWidth);

    auto* const buttons = new QHBoxLayout;
    const auto button = [&](const QString& text, auto slot) {
        auto* const made = new QPushButton(text);
        connect(made, &QPushButton::clicked, this, slot);
        buttons->addWidget(made);
        made->setVisible(canChange);
        return made;
    };
    button(QStringLiteral("&Add"), [this] { add(); });
    remove_ = button(QStringLiteral("&Remove"), [this] { remove(); });
    up_ = button(QStringLiteral("&Up"), [this] { move(-1); });
    down_ = button(QStringLiteral("&Down"), [this] { move(1); });
    buttons->addStretch();
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(table_);
    layout->addLayout(buttons);
    connect(table_, &QTableWidget::currentCellChanged, this, [this] { buttonsShow(); });
    rowsShow(fields, 0);
    setFocusProxy(table_);
}

bool localDbFieldsTab::isKey(int row) const {
    return shown_[static_cast<std::size_t>(row)].sqlName == localDbFieldDescription::PrimaryKeyName;
}

void localDbFieldsTab::rowShow(int row, const localDbFieldDescription& field) {
    table_->setItem(row, name, new QTableWidgetItem(localVclQString(field.getName())));
    table_->setItem(row, type, new QTableWidgetItem);
    table_->setItem(row, length, numberItem(field.getLen()));
    table_->setItem(row, decimals, numberItem(field.getDec()));
    // The key is part of every table.
    const bool isFixed = isKey(row) || !canChange_;
    if (isFixed) {
        for (int column = 0; column < columnsCount; ++column) {
            QTableWidgetItem* const item = table_->item(row, column);
            item->setFlags(item->flags() & ~Qt::ItemIsEditable);
        }
        table_->item(row, type)->setText(localVclQString(field.getMyType()));
        return;
    }
    auto* const box = new TypeBox(localVclQString(field.getMyType()));
    table_->setCellWidget(row, type, box);
    connect(box, &QComboBox::activated, this,
            [this, box] { table_->setCurrentCell(table_->indexAt(box->pos()).row(), type); });
}

void localDbFieldsTab::rowsShow(const localDb::Fields& fields, int current) {
    shown_ = fields;
    table_->setRowCount(0);
    table_->setRowCount(static_cast<int>(fields.size()));
    for (int row = 0; row < table_->rowCount(); ++row) {
        rowShow(row, fields[static_cast<std::size_t>(row)]);
    }
    table_->setCurrentCell(current, name);
    buttonsShow();
}

localDb::Fields localDbFieldsTab::fields() const {
    localDb::Fields all = shown_;
    for (int row = 0; row < table_->rowCount(); ++row) {
        const auto* const box = qobject_cast<const QComboBox*>(table_->cellWidget(row, type));
        if (box == nullptr) {
            continue;
        }
        localDbFieldDescription& field = all[static_cast<std::size_t>(row)];
        field.name = localVclText(table_->item(row, name)->text().trimmed());
        field.myType = localVclText(box->currentText());
        field.len = table_->item(row, length)->data(Qt::EditRole).toInt();
        field.dec = table_->item(row, decimals)->data(Qt::EditRole).toInt();
    }
    return all;
}

QString localDbFieldsTab::fault() const {
    QStringList names;
    for (const localDbFieldDescription& field : fields()) {
        const QString fieldName = localVclQString(field.getName());
        if (fieldName.isEmpty()) {
            return QStringLiteral("A field has no name.");
        }
        if (fieldName.contains(QLatin1Char('"')) || fieldName.contains(QChar(u'\0'))) {
            return QStringLiteral("The name %1 cannot stand in a statement.").arg(fieldName);
        }
        if (names.contains(fieldName, Qt::CaseInsensitive)) {
            return QStringLiteral("Two fields have the name %1.").arg(fieldName);
        }
        if (field.getMyType().empty()) {
            return QStringLiteral("The field %1 has no type: choose one.").arg(fieldName);
        }
        names.append(fieldName);
    }
    return {};
}

void localDbFieldsTab::add() {
    localDb::Fields all = fields();
    all.emplace_back(u"", u"CHAR", 40, 0);
    const auto row = static_cast<int>(all.size()) - 1;
    rowsShow(all, row);
    table_->editItem(table_->item(row, name));
}

void localDbFieldsTab::remove() {
    localDb::Fields all = fields();
    const int row = table_->currentRow();
    all.erase(all.begin() + row);
    rowsShow(all, qMin(row, static_cast<int>(all.size()) - 1));
}

void localDbFieldsTab::move(int by) {
    localDb::Fields all = fields();
    const int row = table_->currentRow();
    std::iter_swap(all.begin() + row, all.begin() + row + by);
    rowsShow(all, row + by);
}

void localDbFieldsTab::buttonsShow() {
    const int row = table_->currentRow();
    const int last = table_->rowCount() - 1;
    const bool isFree = row >= 0 && !isKey(row);
    remove_->setEnabled(isFree && last > 0);
    up_->setEnabled(isFree && row > 0 && !isKey(row - 1));
    down_->setEnabled(isFree && row < last);
}
