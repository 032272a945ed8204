// A person changes the values of a value list.
#pragma once

#include <QDialog>

#include <functional>
#include <vector>

#include "localInterpretatorUTF8/value/localValueDescription.h"

class QWidget;

// A row an item: its presentation in bold, and a field by the type of its value - a line for a
// string or a number, a box to tick for a boolean. An object shows its text and is not changed.
//
// A field writes into the list what a person has changed in it, and nothing else; in a number a
// comma becomes a point, and what is no number counts as 0. "OK" and Enter write and accept,
// "Apply" writes and leaves the dialog open, "Cancel" and Esc reject.
class DemoDialogForListOfValuesChange : public QDialog {
    Q_OBJECT

public:
    // Labels the dialog's lines on the standard output stream.
    static constexpr const char* NUME = "DemoDialogForListOfValuesChange";

    // `list` is a value that holds a value list; the dialog keeps one more link on it. Any other
    // value gives a dialog without rows. Made under the language's turn; asks for it by itself when
    // it writes, so it may run where the turn is given up.
    DemoDialogForListOfValuesChange(const QString& title, const localValueDescription& list,
                                    QWidget* parent = nullptr);
    ~DemoDialogForListOfValuesChange() override;

signals:
    // The changes are in the list.
    void applied();
    void applied1(DemoDialogForListOfValuesChange* dialog);

public slots:
    void okSlot();
    void applied1Slot();

private:
    // Writes what a field holds into its item, when a person has changed it.
    using Write = std::function<void(localValueDescription&)>;

    void writeChanges();
    QWidget* fieldOf(const localValueDescription& value, Write& write);
    QWidget* lineOf(const QString& text, bool isNumber, Write& write);
    QWidget* boxOf(bool ticked, Write& write);

    localValueDescription list_;
    std::vector<Write> writes_;  // in the order of the items; empty for what is not changed
};
