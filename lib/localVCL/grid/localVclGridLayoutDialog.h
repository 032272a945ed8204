// A person changes the layout of a grid as text.
#pragma once

#include <QDialog>

#include <functional>

class QPlainTextEdit;

class localVclGridLayoutDialog : public QDialog {
    Q_OBJECT

public:
    // Takes the text that a person accepts; false leaves the dialog open.
    using Take = std::function<bool(const QString& text)>;

    localVclGridLayoutDialog(const QString& text, Take take, QWidget* parent);

public slots:
    void accept() override;

private:
    QPlainTextEdit* edit_;
    Take take_;
};
