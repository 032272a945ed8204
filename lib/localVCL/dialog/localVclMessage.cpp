#include "localVCL/dialog/localVclMessage.h"

#include <QApplication>
#include <QTimer>

#include <chrono>

#include "dialog/localVclArrowCursor.h"

void localVclMessageShow(const QString& text, const QString& title, int seconds,
                         QMessageBox::Icon icon) {
    const localVclArrowCursor arrow;
    QMessageBox box(icon, title.isEmpty() ? QApplication::applicationName() : title, text,
                    QMessageBox::Ok, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    if (text.size() > localVclMessageLongest) {
        const QString dots = QStringLiteral("...");
        box.setText(text.left(localVclMessageLongest - dots.size()) + dots);
        box.setDetailedText(text);
    }
    box.setSizeGripEnabled(true);
    QTimer timer;
    if (seconds > 0) {
        QObject::connect(&timer, &QTimer::timeout, &box, &QDialog::accept);
        timer.setSingleShot(true);
        timer.setTimerType(Qt::PreciseTimer);
        timer.start(std::chrono::seconds(seconds));
    }
    box.exec();
}
