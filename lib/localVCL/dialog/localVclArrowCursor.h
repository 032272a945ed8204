// A running program shows the wait cursor; whoever asks a person something in between shows the
// arrow.
#pragma once

#include <QCursor>
#include <QGuiApplication>

// The arrow cursor as long as this object lives, if another one was forced.
class localVclArrowCursor {
public:
    localVclArrowCursor() : forced_(QGuiApplication::overrideCursor() != nullptr) {
        if (forced_) {
            QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
        }
    }
    ~localVclArrowCursor() {
        if (forced_) {
            QGuiApplication::restoreOverrideCursor();
        }
    }
    localVclArrowCursor(const localVclArrowCursor&) = delete;
    localVclArrowCursor& operator=(const localVclArrowCursor&) = delete;

private:
    bool forced_;
};
