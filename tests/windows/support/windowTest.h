// What tests of windows share: the lines that were written, and answers to modal dialogs.
#pragma once

#include <QString>
#include <QWidget>

#include <functional>
#include <iostream>
#include <sstream>
#include <streambuf>

// Collects what is written to the standard output stream as long as it lives.
class outputCapture {
public:
    outputCapture() : before_(std::cout.rdbuf(text_.rdbuf())) {}
    ~outputCapture() { std::cout.rdbuf(before_); }
    outputCapture(const outputCapture&) = delete;
    outputCapture& operator=(const outputCapture&) = delete;

    QString text() const { return QString::fromStdString(text_.str()); }

private:
    std::ostringstream text_;
    std::streambuf* before_;
};

// Does something with the next modal dialog as soon as it is open; what it does must close it, or
// it is closed with the test failed. Make one of these before the call that opens the dialog.
class dialogAnswer {
public:
    explicit dialogAnswer(std::function<void(QWidget* dialog)> answer);
    ~dialogAnswer();
    dialogAnswer(const dialogAnswer&) = delete;
    dialogAnswer& operator=(const dialogAnswer&) = delete;

    // Whether the dialog came.
    bool given() const { return given_; }

private:
    void look();

    std::function<void(QWidget*)> answer_;
    bool given_ = false;
    class QTimer* timer_;
};
