// Asks for the name and the key of a new index. The key has its columns in the order in which they
// are ticked.
#pragma once

#include <QDialog>
#include <QStringList>

class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPushButton;

class localDbNewIndexDialog : public QDialog {
    Q_OBJECT

public:
    localDbNewIndexDialog(const QString& table, const QStringList& columns,
                          QWidget* parent = nullptr);

    QString name() const;
    const QStringList& key() const { return key_; }
    bool isUnique() const;

private:
    void ticked(const QListWidgetItem* item);
    void stateShow();

    QString table_;
    QStringList key_;
    QLineEdit* name_;
    QListWidget* columns_;
    QLabel* keyLine_;
    QCheckBox* unique_;
    QPushButton* ok_;
};
