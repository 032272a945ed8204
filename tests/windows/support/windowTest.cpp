#include "windowTest.h"

#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QTimer>

dialogAnswer::dialogAnswer(std::function<void(QWidget*)> answer)
    : answer_(std::move(answer)), timer_(new QTimer) {
    QObject::connect(timer_, &QTimer::timeout, timer_, [this] { look(); });
    timer_->start(10);
}

dialogAnswer::~dialogAnswer() {
    delete timer_;
}

void dialogAnswer::look() {
    const QPointer<QWidget> dialog = QApplication::activeModalWidget();
    // Keys go to the widget with the focus, and there is none before the dialog is the active
    // window.
    if (dialog.isNull() || !dialog->isActiveWindow() || given_) {
        return;
    }
    given_ = true;
    timer_->stop();
    answer_(dialog);
    if (!dialog.isNull() && dialog->isVisible()) {
        QTest::qFail("the dialog is still open", __FILE__, __LINE__);
        dialog->close();
    }
}
