// The scope of a running form, and who works in it.
//
// What a form evaluates may take long, ask a person or wait for an answer, and events are served
// meanwhile: the form's window may be told to close. A Use keeps the scope, whatever becomes of the
// window, and tells the form when the last work has ended, so that it closes then and not before.
#pragma once

#include <functional>
#include <memory>

#include "localInterpretatorUTF8/context/localContextUTF8.h"

class localFormScope {
public:
    localContextUTF8 context;
    // Called when the last use ends.
    std::function<void()> left;

    bool isInUse() const { return uses_ > 0; }

    // Made and ended by who has the language's turn.
    class Use {
    public:
        explicit Use(std::shared_ptr<localFormScope> scope) : scope_(std::move(scope)) {
            ++scope_->uses_;
        }
        ~Use() {
            if (--scope_->uses_ == 0 && scope_->left) {
                scope_->left();
            }
        }
        Use(const Use&) = delete;
        Use& operator=(const Use&) = delete;

    private:
        std::shared_ptr<localFormScope> scope_;
    };

private:
    int uses_ = 0;
};
