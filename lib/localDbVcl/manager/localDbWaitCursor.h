// The wait cursor as long as this object lives.
#pragma once

#include "localInterpretatorUTF8/host/localHost.h"

class localDbWaitCursor {
public:
    localDbWaitCursor() { localHost::current().setCursor(localHost::Cursor::wait); }
    ~localDbWaitCursor() { localHost::current().setCursor(localHost::Cursor::restored); }
    localDbWaitCursor(const localDbWaitCursor&) = delete;
    localDbWaitCursor& operator=(const localDbWaitCursor&) = delete;
};
