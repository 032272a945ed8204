// Asks for a text to search for, and how to search.
#pragma once

#include <QDialog>
#include <QTextDocument>

#include <string>
#include <vector>

class QCheckBox;
class QComboBox;
class QRadioButton;

class localDialogFindString : public QDialog {
    Q_OBJECT

public:
    // `history` are the texts of past searches, most recent last; that one stands ready, and
    // `flags` are preset.
    localDialogFindString(const std::vector<std::u16string>& history,
                          QTextDocument::FindFlags flags, QWidget* parent = nullptr);

    QString text() const;
    QTextDocument::FindFlags flags() const;

private:
    QComboBox* text_;
    QCheckBox* caseSensitive_;
    QRadioButton* forward_;
    QRadioButton* backward_;
};
