// A person chooses one of many lines.
#pragma once

#include <QDialog>
#include <QStringList>

class QListWidget;

// A modal dialog with a list and the buttons "OK" and "Cancel". Enter and a double click accept,
// Esc rejects. Rows count from 0; -1 is none.
class localVclQStringListGetItemDialog : public QDialog {
    Q_OBJECT

public:
    // `row` is selected at first, or the first row when there is no such row, and is written when
    // the dialog is accepted; so it must live as long as the dialog. An empty list gives -1.
    localVclQStringListGetItemDialog(const QString& title, const QStringList& lines, int& row,
                                     QWidget* parent = nullptr);

signals:
    // The choice was accepted and the row is written.
    void applied();

public slots:
    void accept() override;

private:
    QListWidget* list_;
    int& row_;
};

// Runs the dialog over the active window, half as wide as the screen and 0.3 of its height, writes
// a line "Accepted", "Rejected" or "Unexpected" by its result, and gives whether it was accepted;
// only then is `row` changed. On the windows' thread only.
bool localVclQStringListGetItem(const QString& title, const QStringList& lines, int& row);
