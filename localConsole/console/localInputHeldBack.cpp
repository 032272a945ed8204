#include "console/localInputHeldBack.h"

#include <QApplication>

namespace {

bool isKeptInput(QEvent::Type type) {
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
bool isDroppedInput(QEvent::Type type) {
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

localInputHeldBack::localInputHeldBack() {
    qApp->installEventFilter(this);
}

localInputHeldBack::~localInputHeldBack() {
    qApp->removeEventFilter(this);
    for (Held& held : held_) {
        if (!held.receiver.isNull()) {
            QCoreApplication::postEvent(held.receiver, held.event.release());
        }
    }
}

bool localInputHeldBack::eventFilter(QObject* receiver, QEvent* event) {
    if (!event->spontaneous() || QApplication::activeModalWidget() != nullptr) {
        return false;
    }
    if (event->type() == QEvent::ShortcutOverride) {
        // Taken, so that the key is no shortcut now.
        event->accept();
        return true;
    }
    // Input comes to the window first.
    if (!receiver->isWindowType()) {
        return false;
    }
    if (isKeptInput(event->type())) {
        held_.push_back({receiver, std::unique_ptr<QEvent>(event->clone())});
        return true;
    }
    return isDroppedInput(event->type());
}
