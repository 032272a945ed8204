#include "localDbVcl/manager/localDbTree.h"

#include <QStyle>

#include "localVCL/text/localVclText.h"

localDbTree::localDbTree(std::u16string_view connection, const std::vector<Table>& tables,
                         QWidget* parent)
    : QTreeWidget(parent) {
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setFrameShape(QFrame::NoFrame);
    QTreeWidgetItem* const root = itemAdd(*invisibleRootItem(), connectionItem, connection);
    for (const Table& table : tables) {
        QTreeWidgetItem* const shown = itemAdd(*root, tableItem, table.name);
        QTreeWidgetItem* const fields = itemAdd(*shown, fieldsItem, u"Поля");
        for (const std::u16string& field : table.fields) {
            itemAdd(*fields, fieldItem, field);
        }
    }
    connect(this, &QTreeWidget::itemCollapsed, this, &localDbTree::collapsedItemSlot);
    connect(this, &QTreeWidget::itemExpanded, this, &localDbTree::expandedItemSlot);
    root->setExpanded(true);
    setCurrentItem(root);
}

QTreeWidgetItem* localDbTree::itemAdd(QTreeWidgetItem& parent, ItemType type,
                                      std::u16string_view text) {
    auto* const item = new QTreeWidgetItem(&parent, {localVclQString(text)}, type);
    item->setIcon(0, iconOf(type, false));
    return item;
}

QIcon localDbTree::iconOf(int type, bool isOpen) const {
    switch (type) {
        case connectionItem:
            return style()->standardIcon(QStyle::SP_DriveHDIcon);
        case tableItem:
            return style()->standardIcon(QStyle::SP_FileDialogDetailedView);
        case fieldsItem:
            return style()->standardIcon(isOpen ? QStyle::SP_DirOpenIcon
                                                : QStyle::SP_DirClosedIcon);
        default:
            return style()->standardIcon(QStyle::SP_FileIcon);
    }
}

void localDbTree::collapsedItemSlot(QTreeWidgetItem* item) {
    item->setIcon(0, iconOf(item->type(), false));
}

void localDbTree::expandedItemSlot(QTreeWidgetItem* item) {
    item->setIcon(0, iconOf(item->type(), true));
}
