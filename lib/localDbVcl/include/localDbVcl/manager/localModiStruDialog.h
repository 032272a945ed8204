// The structure of a table: what its fields shall be, its indexes, how it was declared.
//
// The fields are only wanted; whoever opened the dialog builds the table anew. Indexes are created
// and dropped at once.
#pragma once

#include <QDialog>

#include "localDb/localDb.h"

class QTabWidget;
class QTextBrowser;
class localDbFieldsTab;
class localDbIndexesTab;

class localModiStruDialog : public QDialog {
    Q_OBJECT

public:
    // `fields` are those of the object. What is no table of the person's own is only looked at.
    localModiStruDialog(std::u16string_view connection, const localDbObject& object,
                        const localDb::Fields& fields, QWidget* parent = nullptr);

    // Whether the object can be changed: a table, and none of the file's own.
    static bool canChange(const localDbObject& object);

    // What the person wants. A new field has no sqlName.
    localDb::Fields fields() const;

public slots:
    // Accepts when each field has a name of its own and a type; a box tells what is missing.
    void slotOk();
    void slotCancel();

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void declarationShow();

    localDbObject object_;
    QTabWidget* tabs_;
    localDbFieldsTab* fieldsTab_;
    QTextBrowser* declaration_;
};
