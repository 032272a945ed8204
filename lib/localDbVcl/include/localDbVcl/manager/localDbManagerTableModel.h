// The objects of a data file, a row each: type, name, number of rows, the statement that made it.
//
// Rows of tables are counted when somebody asks for it only: that takes its time in a large table.
#pragma once

#include <QAbstractTableModel>

#include <vector>

#include "localDb/table/localDbObject.h"

class localDbManagerTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { objType, objName, rowCountColumn, tabComment, columnsCount };

    // Reads the list. Empty after a box when the connection is unknown or the file cannot be read.
    explicit localDbManagerTableModel(std::u16string connection, QObject* parent = nullptr);

    const std::u16string& connection() const { return connection_; }
    bool isRead() const { return isRead_; }
    const localDbObject& object(int row) const {
        return rows_[static_cast<std::size_t>(row)].object;
    }

    // Reads the list anew; what was counted is forgotten. False after a box, with the list as it
    // was.
    bool read();
    // Reads the list anew and counts the rows of all tables.
    void countRows();
    // Takes an object that has gone from the list, and with a table what belonged to it.
    void objectRemove(int row);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    struct Row {
        localDbObject object;
        QString rowCount;  // empty: not counted
    };

    QString text(const Row& row, int column) const;

    std::u16string connection_;
    std::vector<Row> rows_;
    bool isRead_ = false;
};
