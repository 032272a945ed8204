// The rows of one table as the file holds them, all columns, in the order of `select *`.
#pragma once

#include <QTableView>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

class localDbtRowsModel;

class localDbtQTableView : public QTableView {
    Q_OBJECT

public:
    // Reads the first rows; dbTableBrowse makes one and tells when that failed.
    localDbtQTableView(std::u16string_view connection, std::u16string_view table,
                       QWidget* parent = nullptr);

    const std::u16string& connection() const { return connection_; }
    const std::u16string& table() const { return table_; }
    const localDbtRowsModel& rows() const { return *rows_; }
    QSize sizeHint() const override;

    // All open views on a table read it again; their windows close when it is gone.
    static void tableChanged(std::u16string_view connection, std::u16string_view table);

public slots:
    // Shows the record of a row, and writes back those cells that come back as they are.
    void activatedSlot(const QModelIndex& index);
    void recordDelete();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void fetchAll();
    // The row's id. A box tells when it has none.
    std::optional<std::int64_t> idOf(const QModelIndex& index) const;
    void missingTell(std::int64_t id);

    std::u16string connection_;
    std::u16string table_;      // as the file has it
    std::u16string tableWord_;  // as it stands in a statement
    localDbtRowsModel* rows_;
};
