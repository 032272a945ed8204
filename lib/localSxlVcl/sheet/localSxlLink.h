// The thread between a sheet and a widget that shows it. The sheet changes on the thread that is in
// the language, the widget goes on the windows' thread.
#pragma once

#include <QMetaObject>

#include <atomic>
#include <exception>
#include <mutex>

#include "localInterpretatorUTF8/value/localValueDescription.h"
#include "localSxlVcl/sheet/localSxl.h"

class localSxlLink final : public localSxlSheet::Watcher {
public:
    localSxlLink(const localValueDescription& sheet, localSxl* shown)
        : value(sheet), shown_(shown) {
        localSxlSheet::of(value)->watch(this);
    }
    // Under the language's turn.
    ~localSxlLink() override { localSxlSheet::of(value)->watchEnd(this); }

    // The widget goes. Behind this nobody calls it any more.
    void cut() {
        const std::lock_guard lock(mutex_);
        shown_ = nullptr;
    }

    void sheetChanged() noexcept override {
        if (told_.exchange(true)) {
            return;  // one painting is enough for all changes before it
        }
        try {
            const std::lock_guard lock(mutex_);
            if (shown_ != nullptr) {
                QMetaObject::invokeMethod(
                    shown_, [widget = shown_] { widget->update(); }, Qt::QueuedConnection);
            }
        } catch (const std::exception&) {
            told_ = false;  // the next change tells it
        }
    }

    // Changes from here on are told again.
    void painted() { told_ = false; }

    const localValueDescription value;

private:
    std::mutex mutex_;
    localSxl* shown_;
    std::atomic<bool> told_ = false;
};
