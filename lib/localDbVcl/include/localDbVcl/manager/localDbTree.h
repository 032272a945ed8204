// The tables of a data file and their fields, as a tree.
#pragma once

#include <QTreeWidget>

#include <string>
#include <vector>

class localDbTree : public QTreeWidget {
    Q_OBJECT

public:
    // Types of the items.
    enum ItemType { connectionItem = 1002, tableItem = 1003, fieldsItem = 1004, fieldItem = 1005 };

    struct Table {
        std::u16string name;
        std::vector<std::u16string> fields;
    };

    // The root has the name of a connection.
    localDbTree(std::u16string_view connection, const std::vector<Table>& tables,
                QWidget* parent = nullptr);

public slots:
    void collapsedItemSlot(QTreeWidgetItem* item);
    void expandedItemSlot(QTreeWidgetItem* item);

private:
    QTreeWidgetItem* itemAdd(QTreeWidgetItem& parent, ItemType type, std::u16string_view text);
    QIcon iconOf(int type, bool isOpen) const;
};
