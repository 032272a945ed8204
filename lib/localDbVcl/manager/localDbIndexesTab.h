// The indexes of a table, created and dropped at once.
#pragma once

#include <QWidget>

#include <string>
#include <string_view>

#include "localDb/localDb.h"

class QPushButton;
class QTableWidget;

class localDbIndexesTab : public QWidget {
    Q_OBJECT

public:
    // `columns` are those that the table has in the file. A file's own table is only looked at.
    localDbIndexesTab(std::u16string_view connection, const localDbObject& object,
                      std::vector<std::u16string> columns, bool canChange,
                      QWidget* parent = nullptr);

private:
    void rowsShow();
    void create();
    void drop();
    void buttonsShow();

    std::u16string connection_;
    std::u16string table_;  // as the file has it
    std::vector<std::u16string> columns_;
    bool canChange_;
    QTableWidget* list_;
    QPushButton* drop_;
};
