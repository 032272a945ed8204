// The list of fields as a person edits it.
#pragma once

#include <QWidget>

#include <vector>

#include "localDb/localDb.h"

class QPushButton;
class QTableWidget;

class localDbFieldsTab : public QWidget {
    Q_OBJECT

public:
    enum Column { name, type, length, decimals, columnsCount };

    localDbFieldsTab(const localDb::Fields& fields, bool canChange, QWidget* parent = nullptr);

    localDb::Fields fields() const;
    // What keeps the list from being a table's; empty when nothing does.
    QString fault() const;

private:
    void rowsShow(const localDb::Fields& fields, int current);
    void rowShow(int row, const localDbFieldDescription& field);
    void add();
    void remove();
    void move(int by);
    void buttonsShow();
    bool isKey(int row) const;

    localDb::Fields shown_;  // a field a row, as the row was filled
    bool canChange_;
    QTableWidget* table_;
    QPushButton* remove_;
    QPushButton* up_;
    QPushButton* down_;
};
