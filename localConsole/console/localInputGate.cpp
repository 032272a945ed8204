#include "console/localInputGate.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

namespace {

bool isInput(QEvent::Type type) {
    switch (type) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
            return true;
        default:
            return false;
    }
}

// Ways of the mouse and the like would fill the memory, and nobody misses them.
bool isNeverKept(QEvent::Type type) {
    switch (type) {
        case QEvent::MouseMove:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::TabletMove:
        case QEvent::TabletPress:
        case QEvent::TabletRelease:
            return true;
        default:
            return false;
    }
}

}  // namespace

localInputGate::localInputGate(Fate fate, const QWidget* window)
    : fate_(fate), all_(window == nullptr), window_(window) {
    qApp->installEventFilter(this);
}

localInputGate::~localInputGate() {
    qApp->removeEventFilter(this);
    for (Kept& kept : kept_) {
        if (!kept.receiver.isNull()) {
            QCoreApplication::postEvent(kept.receiver, kept.event.release());
        }
    }
}

bool localInputGate::isClosedFor(const QObject* receiver) const {
    if (all_) {
        return true;
    }
    if (window_.isNull()) {
        return false;
    }
    const auto* const widget = qobject_cast<const QWidget*>(receiver);
    return receiver == window_->windowHandle() ||
           (widget != nullptr && widget->window() == window_);
}

bool localInputGate::eventFilter(QObject* receiver, QEvent* event) {
    if (!event->spontaneous() || QApplication::activeModalWidget() != nullptr ||
        !isClosedFor(receiver)) {
        return false;
    }
    if (event->type() == QEvent::ShortcutOverride) {
        // Taken, so that the key is no shortcut now.
        event->accept();
        return true;
    }
    // Input comes to the window first, from there to its widgets.
    if (!receiver->isWindowType()) {
        return false;
    }
    if (!isInput(event->type())) {
        return isNeverKept(event->type());
    }
    if (fate_ == Fate::comesLater) {
        kept_.push_back({receiver, std::unique_ptr<QEvent>(event->clone())});
    }
    return true;
}
