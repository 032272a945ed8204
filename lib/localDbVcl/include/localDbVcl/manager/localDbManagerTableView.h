// The list of a data file's objects, and the keys that open, change, remove and count them.
#pragma once

#include <QTableView>

#include "localDbVcl/manager/localDbManagerTableModel.h"
#include "localDbVcl/manager/localDbWindowFile.h"

class localDbManagerTableView : public QTableView {
    Q_OBJECT

public:
    // Takes the model.
    explicit localDbManagerTableView(localDbManagerTableModel* model, QWidget* parent = nullptr);

public slots:
    // On the current row. Only a table opens; only a table and an index can be removed.
    void objectOpen();
    void structureModify();
    void objectDelete();
    void rowsCount();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    // Whether there is a row to work on, and the file is still the one shown.
    bool isReady() const;
    const localDbObject& current() const;
    void columnsFit();

    localDbManagerTableModel* model_;
    localDbWindowFile file_;
};
