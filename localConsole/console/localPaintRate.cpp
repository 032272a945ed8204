#include "console/localPaintRate.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

#include <algorithm>
#include <chrono>

namespace {
constexpr std::chrono::milliseconds frame{20};
constexpr double mostFramesAhead = 100;
}  // namespace

localPaintRate::localPaintRate(QWidget* widget) : widget_(widget), framesAhead_(mostFramesAhead) {
    nextFrame_.setSingleShot(true);
    nextFrame_.setInterval(frame);
    // Not left to the event loop: the next change may come before it gets there.
    QObject::connect(&nextFrame_, &QTimer::timeout, widget, [this] { paintNow(); });
    sinceLastChange_.start();
}

void localPaintRate::paintNow() {
    widget_->setUpdatesEnabled(true);
    QEvent paintAllThatWaits(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(widget_->window(), &paintAllThatWaits);
}

void localPaintRate::changed() {
    const double passed = static_cast<double>(sinceLastChange_.restart()) / frame.count();
    framesAhead_ = std::min(framesAhead_ + passed, mostFramesAhead);
    if (framesAhead_ >= 1) {
        framesAhead_ -= 1;
        widget_->setUpdatesEnabled(true);
        return;
    }
    widget_->setUpdatesEnabled(false);
    if (!nextFrame_.isActive()) {
        nextFrame_.start();
    }
}
